// SPDX-License-Identifier: MIT
#include "propdb/confined_vfs.h"
#include "tests/test_program.h"
#include "tests/volume_fixture.h"

#include <sqlite3.h>

#include <vector>

namespace {

constexpr PropertyId kForgedText = MakePropertyId(1, CEVT_LPWSTR);
constexpr PropertyId kForgedNumber = MakePropertyId(2, CEVT_I4);
constexpr PropertyId kForgedFraction = MakePropertyId(3, CEVT_R8);
constexpr PropertyId kPicture = MakePropertyId(4, CEVT_BLOB);
const std::vector<PropertyId> kIds { kForgedText, kForgedNumber, kForgedFraction, kPicture };
const std::vector<SortOrder> kByForgedText { { kForgedText } };

/// Changes a data file by SQL, as somebody does who knows of the checksums and lets no column
/// refuse a value.
void Forge(const QString& path, const QByteArray& change)
{
    const ConfinedVfs::Permit permit(QFile::encodeName(path));
    sqlite3* connection = nullptr;
    const QByteArray sql = "PRAGMA temp_store = MEMORY; PRAGMA writable_schema = ON;"
                           "CREATE TEMP TABLE honest AS SELECT name, sql FROM sqlite_schema;"
                           "UPDATE sqlite_schema SET sql = replace(replace(replace(sql,"
                           "' TEXT', ' ANY'), ' BLOB', ' ANY'), '\" INTEGER', '\" ANY');"
                           "PRAGMA writable_schema = RESET;"
        + change
        + "; PRAGMA writable_schema = ON;"
          "UPDATE sqlite_schema AS forged SET sql = honest.sql FROM honest "
          "WHERE honest.name = forged.name";
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &connection, SQLITE_OPEN_READWRITE,
            ConfinedVfs::Name())
            != SQLITE_OK
        || sqlite3_exec(connection, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("the file cannot be forged: %s", sqlite3_errmsg(connection));
    sqlite3_close(connection);
}

/// A closed data file with some rows, the second of which is then changed.
void MakeForgedRows(VolumeFixture& fixture, const QByteArray& assignment)
{
    fixture.Mount();
    const std::vector<PropertySpec> specs { { kForgedText, u"Name"_s },
        { kForgedNumber, u"Count"_s }, { kForgedFraction, u"Price"_s },
        { kPicture, u"Picture"_s } };
    Take(fixture.volume->CreateDatabase(u"rows"_s, DatabaseType { 1 }, specs, kByForgedText));
    {
        const auto rows = Take(fixture.volume->OpenDatabase(u"rows"_s, kByForgedText.front()));
        for (int i = 0; i < 3; ++i) {
            const std::vector<PropertyValue> values { { kForgedText, 0, u"name"_s },
                { kForgedNumber, 0, i }, { kForgedFraction, 0, 0.5 },
                { kPicture, 0, QByteArray("picture") } };
            Take(rows->Write(kNoObject, values));
        }
    }
    fixture.volume.reset();
    Forge(fixture.Path(), "UPDATE \"rows (1)\" SET " + assignment + " WHERE \"Count\" = 1");
}

/// Reads what all records hold, one by one.
ErrorNumber Walk(Database& rows)
{
    auto at = rows.SeekFirst();
    for (; at && *at != kNoObject; at = rows.SeekNext(1)) {
        if (const auto record = rows.Read(kIds); !record)
            return record.Error();
    }
    return at.Error();
}

ErrorNumber Scan(Database& rows, const std::vector<PropertyId>& ids, ScanOrder order)
{
    const auto done = rows.Scan(ids, order, [](ObjectId, auto) { return true; });
    return done.Error();
}

} // namespace

class ForgedValuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aValueOfAnotherClassIsDamage()
    {
        for (const char* assignment :
            { "\"Name\" = 5", "\"Name\" = 2.5", "\"Name\" = x'414243'", "\"Count\" = 'five'",
                "\"Count\" = 2.5", "\"Price\" = '2.5'", "\"Picture\" = 5", "\"Picture\" = 'abc'",
                // Which is none.
                "\"Name\" = NULL, \"Price\" = NULL, \"Picture\" = NULL" }) {
            const ErrorNumber error = QByteArrayView(assignment).endsWith("NULL")
                ? ErrorNumber::None
                : ErrorNumber::FileCorrupt;
            VolumeFixture fixture;
            MakeForgedRows(fixture, assignment);
            fixture.Mount(Disposition::OpenExisting);
            const auto rows = Take(fixture.volume->OpenDatabase(u"rows"_s, kByForgedText.front()));
            QVERIFY2(Walk(*rows) == error, assignment);
            for (const ScanOrder order : { ScanOrder::Any, ScanOrder::Sorted })
                QVERIFY2(Scan(*rows, kIds, order) == error, assignment);
        }
    }

    void aForgedCatalogueIsRefused()
    {
        for (const char* change :
            { "UPDATE property_database SET name = 5",
                "UPDATE property_database SET table_name = 5",
                "UPDATE property SET name = x'414243'", "UPDATE property SET column_name = 2.5" }) {
            VolumeFixture fixture;
            MakeForgedRows(fixture, "\"Count\" = 1");
            Forge(fixture.Path(), change);
            const auto volume
                = Volume::Mount(fixture.Path(), Disposition::OpenExisting, VolumeAccess::Exclusive);
            QVERIFY2(volume.Error() == ErrorNumber::FileCorrupt, change);
        }
    }
};

QUILLORY_TEST(QCoreApplication, ForgedValuesTest)
#include "forged_values_test.moc"

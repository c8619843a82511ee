// SPDX-License-Identifier: MIT
#include "propdb/detail/confined_vfs.h"
#include "store/data_file_check.h"
#include "tests/list_fixture.h"
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

/// Makes every inner page of the only large index lead to one other, and so to the same leaf on
/// billions of ways.
void LeadIndexInCircles(const QString& path)
{
    constexpr char kInnerIndexPage = 2;
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        qFatal("the file cannot be forged");
    QByteArray bytes = file.readAll();
    char* above = nullptr;
    for (qsizetype place = 0; place < bytes.size(); place += kPageSize) {
        char* page = bytes.data() + place;
        if (*page != kInnerIndexPage)
            continue;
        if (above != nullptr) {
            const auto number = static_cast<quint32>(place / kPageSize + 1);
            const auto cells = qFromBigEndian<quint16>(above + 3);
            for (qsizetype cell = 0; cell < cells; ++cell)
                qToBigEndian(number, above + qFromBigEndian<quint16>(above + 12 + 2 * cell));
            qToBigEndian(number, above + 8);
            SealPage(above, static_cast<quint32>((above - bytes.data()) / kPageSize + 1));
        }
        above = page;
    }
    file.seek(0);
    file.write(bytes);
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

/// What opening the file, or a check of it, finds.
QString Judge(const QString& path)
{
    const auto volume = Volume::Mount(path, Disposition::OpenExisting, VolumeAccess::ReadOnly);
    if (!volume)
        return volume.Error() == ErrorNumber::FileCorrupt ? u"refused"_s : u"no reason"_s;
    return Take(CheckDataFile(**volume)).isEmpty() ? u"sound"_s : u"faulty"_s;
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

    void anIndexThatGoesInCirclesIsDamage()
    {
        VolumeFixture fixture;
        const std::vector<PropertySpec> specs { { kForgedText, u"Name"_s },
            { kPicture, u"Picture"_s } };
        Take(fixture.Mount().CreateDatabase(u"rows"_s, DatabaseType { 1 }, specs, kByForgedText));
        {
            const auto rows = Take(fixture.volume->OpenDatabase(u"rows"_s, kByForgedText.front()));
            QVERIFY(fixture.volume->BeginTransaction().IsOk());
            for (int i = 0; i < 300; ++i)
                Take(rows->Write(kNoObject,
                    std::vector<PropertyValue> { { kForgedText, 0, QString(400, u'a') },
                        { kPicture, 0, QByteArray(2000, 'a') } }));
            QVERIFY(fixture.volume->EndTransaction(true).IsOk());
        }
        fixture.volume.reset();
        LeadIndexInCircles(fixture.Path());
        fixture.Mount(Disposition::OpenExisting);
        const auto rows = Take(fixture.volume->OpenDatabase(u"rows"_s, kByForgedText.front()));
        QCOMPARE(Scan(*rows, { kForgedText }, ScanOrder::Sorted), ErrorNumber::FileCorrupt);
        QCOMPARE(rows->ListRecords().Error(), ErrorNumber::FileCorrupt);
        QCOMPARE(rows->RecordCount().Error(), ErrorNumber::FileCorrupt);
    }

    void aForgedCatalogueIsNotSound()
    {
        ListFixture lists;
        lists.MakeFullList(u"Pantry"_s);
        lists.Add({ u"row"_s, u"1"_s });
        lists.MakeFullList(u"Tools"_s);
        lists.rows.reset();
        lists.data->Unmount();
        QCOMPARE(Judge(lists.Path()), u"sound"_s);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"forged.idb"_s);
        // Databases: 1 the catalogue, 3 and 6 the rows; 2 and 5 are the lists, 4 the row.
        for (const char* change : { "UPDATE property_database SET name = 5",
                 "UPDATE property_database SET table_name = 5",
                 "UPDATE property SET name = x'414243'", "UPDATE property SET column_name = 2.5",
                 R"(UPDATE property_database SET table_name =
                    (SELECT table_name FROM property_database WHERE oid = 3) WHERE oid = 6)",
                 "UPDATE property_database SET name = 'InvLists'",
                 "UPDATE property_database SET oid = 4294967299 WHERE oid = 3",
                 "UPDATE property_database SET type = type + 4294967296",
                 "UPDATE property_database SET type = 7 WHERE oid = 3",
                 "UPDATE property_database SET type = 71990003 WHERE oid = 3",
                 "UPDATE property_database SET type = 71990001 WHERE oid = 3",
                 "UPDATE property_database SET name = 'gone' WHERE oid = 3",
                 "UPDATE property_database SET name = 'lists' WHERE oid = 1",
                 "UPDATE property SET id = id + 4294967296",
                 "UPDATE property SET id = 2 WHERE database = 3 AND position = 2",
                 "UPDATE property SET is_declared = 0 WHERE database = 1 AND position = 1",
                 "UPDATE object_counter SET next_oid = 6", "UPDATE object_counter SET next_oid = 4",
                 "UPDATE object_counter SET next_oid = 4294967297",
                 "INSERT INTO object_counter VALUES(9)", "DELETE FROM \"InvLists (1)\"",
                 "UPDATE \"InvLists (1)\" SET \"MapName\" = 'none' WHERE oid = 2",
                 "UPDATE \"InvLists (1)\" SET \"MapName\" = NULL",
                 "UPDATE \"InvLists (1)\" SET \"Name\" = NULL",
                 R"sql(UPDATE "InvLists (1)" SET "MapName" =
                    (SELECT max("MapName") FROM "InvLists (1)"))sql",
                 "UPDATE \"InvLists (1)\" SET oid = 4294967298 WHERE oid = 2",
                 "UPDATE \"InvLists (1)\" SET oid = 7 WHERE oid = 2",
                 "UPDATE \"InvLists (1)\" SET oid = -2 WHERE oid = 2",
                 "UPDATE \"InvLists (1)\" SET \"TableIcon\" = 70000" }) {
            QFile::remove(path);
            QVERIFY(QFile::copy(lists.Path(), path));
            Forge(path, change);
            QVERIFY2(Judge(path) != u"sound"_s, change);
        }
    }
};

QUILLORY_TEST(QCoreApplication, ForgedValuesTest)
#include "forged_values_test.moc"

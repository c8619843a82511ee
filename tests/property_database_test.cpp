// SPDX-License-Identifier: MIT
#include "tests/test_program.h"
#include "tests/volume_fixture.h"

#include <array>
#include <cmath>
#include <limits>
#include <set>

namespace {

constexpr PropertyId kRowName = MakePropertyId(10001, CEVT_LPWSTR);
constexpr PropertyId kRowQuantity = MakePropertyId(10002, CEVT_I4);
constexpr PropertyId kRowPrice = MakePropertyId(77, CEVT_R8);
constexpr PropertyId kUndeclared = MakePropertyId(11008, CEVT_BLOB);
constexpr DatabaseType kRowsType { 71990002 };
const std::vector<SortOrder> kByRowName { { kRowName } };
const std::vector<PropertySpec> kRowSpecs {
    { kRowName, u"Name"_s },
    { kRowQuantity, u"Quantity"_s },
    { kRowPrice, u"name"_s },
    { kUndeclared, u"Picture"_s, false },
};

PropertyValue Text(const QString& text)
{
    return { kRowName, 0, text };
}
PropertyValue Quantity(qint32 count)
{
    return { kRowQuantity, 0, count };
}

/// A volume with one database of rows, and verbs on it.
class Rows : public VolumeFixture
{
public:
    explicit Rows(const std::vector<PropertySpec>& specs = kRowSpecs)
    {
        Mount();
        oid = Take(volume->CreateDatabase(u"rows"_s, kRowsType, specs, kByRowName));
        Open();
    }
    void Open() { rows = Take(volume->OpenDatabase(u"rows"_s, kByRowName.front())); }
    void Reopen()
    {
        rows.reset();
        Remount();
        Open();
    }
    ObjectId Add(const std::vector<PropertyValue>& values) const
    {
        return Take(rows->Write(kNoObject, values));
    }
    /// The names in sort order, "-" for a record without one.
    QString Names() const
    {
        QStringList names;
        for (ObjectId at = Take(rows->SeekFirst()); at != kNoObject; at = Take(rows->SeekNext(1))) {
            const Record record = Take(rows->ReadAll());
            const PropertyValue* name = FindProperty(record.values, kRowName);
            names << (name == nullptr ? u"-"_s : std::get<QString>(name->value));
        }
        return names.join(u' ');
    }
    PropertyVariant Value(ObjectId record, PropertyId id) const
    {
        Take(rows->SeekTo(record));
        const std::vector ids { id };
        return Take(rows->Read(ids)).values.front().value;
    }

    ObjectId oid = kNoObject;
    std::unique_ptr<Database> rows;
};

} // namespace

class PropertyDatabaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyNameWillDo()
    {
        Rows rows;
        for (const QString& name : { u"sqlite_sequence"_s, u" SQLite_x"_s, u"\"; DROP"_s, u""_s,
                 u"oid"_s, QString(300, u'n') }) {
            const std::vector<PropertySpec> specs { { kRowName, name } };
            Take(rows.volume->CreateDatabase(name, kRowsType, specs, kByRowName));
            rows.Reopen();
            const auto other = Take(rows.volume->OpenDatabase(name, kByRowName.front()));
            QCOMPARE(other->Properties().front().name, name);
        }
    }

    void valuesComeBackAsTheyWereWritten()
    {
        const QString loneSurrogates = QString(QChar(0xDC00)) + u'x' + QChar(0xD800);
        const std::vector<std::pair<ValueType, std::vector<PropertyVariant>>> valuesByType {
            { CEVT_I2, { qint16 { 0 }, qint16 { -32768 }, qint16 { 32767 } } },
            { CEVT_I4,
                { 0, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max() } },
            { CEVT_UI4, { 0U, 1U, 0xFFFFFFFFU } },
            { CEVT_R8, { 0.1, -0.0, std::numeric_limits<double>::infinity() } },
            { CEVT_BOOL, { false, true } },
            { CEVT_LPWSTR, { QString(), loneSurrogates, u"\u00e4\U0001F9C2 \t\r\n"_s } },
            { CEVT_FILETIME, { FileTime { 0 }, FileTime { 1 }, FileTime { 0xFFFFFFFFFFFFFFFF } } },
            { CEVT_BLOB, { QByteArray(), QByteArray("\0\1\377", 3), QByteArray(9000, 'b') } },
        };
        // Of one number and one name, each gets a column of its own.
        std::vector<PropertySpec> specs { kRowSpecs.front() };
        for (const auto& [type, values] : valuesByType)
            specs.push_back({ MakePropertyId(5, type), u"value"_s });
        Rows rows(specs);
        std::vector<std::pair<ObjectId, PropertyValue>> written;
        for (const auto& [type, values] : valuesByType) {
            for (const PropertyVariant& value : values) {
                const PropertyValue property { MakePropertyId(5, type), 0, value };
                written.emplace_back(rows.Add({ property }), property);
            }
        }
        rows.Reopen();
        for (const auto& [oid, expected] : written) {
            const PropertyVariant actual = rows.Value(oid, expected.id);
            QVERIFY2(actual == expected.value, qPrintable(QString::number(quint32(oid))));
            if (const auto* number = std::get_if<double>(&actual))
                QCOMPARE(std::signbit(*number), std::signbit(std::get<double>(expected.value)));
        }
    }

    void textMayBeginWithAByteOrderMark()
    {
        Rows rows;
        const QChar mark(0xFEFF);
        const QChar turned(0xFFFE);
        for (const QString& text : { QString(mark), mark + u"rice"_s, turned + u"rice"_s,
                 QString(mark) + mark, turned + u""_s + mark, u"rice"_s + mark }) {
            const ObjectId oid = rows.Add({ Text(text) });
            QCOMPARE(std::get<QString>(rows.Value(oid, kRowName)), text);
        }
    }

    void aTextIsTooLongOnceAndForAll()
    {
        // What is taken in can be shown in order, changed and deleted again, in spite of its index.
        constexpr qsizetype kMostUnits = (10 << 20) - 2048;
        Rows rows;
        const QString most(kMostUnits, u'n');
        // In a transaction that nobody commits, which spares the medium much of it.
        QVERIFY(rows.volume->BeginTransaction().IsOk());
        const ObjectId oid = rows.Add({ Text(most) });
        for (const qsizetype units : { kMostUnits + 4096, 3 * kMostUnits }) {
            const std::vector tooLong { Text(QString(units, u'n')) };
            QCOMPARE(rows.rows->Write(kNoObject, tooLong).Error(), ErrorNumber::BadLength);
            QCOMPARE(rows.rows->Write(oid, tooLong).Error(), ErrorNumber::BadLength);
        }
        int visits = 0;
        const std::vector ids { kRowName };
        const auto done = rows.rows->Scan(ids, ScanOrder::Sorted, [&](ObjectId, auto values) {
            visits += std::get<QString>(values[0].value) == most ? 1 : 0;
            return true;
        });
        QVERIFY(done.IsOk());
        QCOMPARE(visits, 1);
        Take(rows.rows->Write(oid, std::vector { Quantity(1) }));
        QVERIFY(rows.rows->DeleteRecord(oid).IsOk());
    }

    void recordsAreSortedByUnitWithMissingKeysLast()
    {
        Rows rows;
        // By unit a private-use character stands behind one beyond the first plane.
        const QString beyond = u"\U00010000"_s;
        rows.Add({ Quantity(1) });
        for (const QString& name : { u"pear"_s, u"\uFFFD"_s, beyond, u"Pear"_s, u""_s, u"pea"_s })
            rows.Add({ Text(name) });
        rows.Reopen();
        QCOMPARE(rows.Names(), u" Pear pea pear "_s + beyond + u" \uFFFD -"_s);
    }

    void aWalkSurvivesWritesUnderIt()
    {
        Rows rows;
        for (const QString& name : { u"a"_s, u"b"_s, u"d"_s })
            rows.Add({ Text(name) });
        const ObjectId keyless = rows.Add({ Quantity(0) });
        QStringList seen;
        for (ObjectId at = Take(rows.rows->SeekFirst()); at != kNoObject;
             at = Take(rows.rows->SeekNext(1))) {
            const Record record = Take(rows.rows->ReadAll());
            const PropertyValue* name = FindProperty(record.values, kRowName);
            seen << (name == nullptr ? u"-"_s : std::get<QString>(name->value));
            if (seen.last() == u"b"_s)
                rows.Add({ Text(u"c"_s) });
            if (seen.last() == u"d"_s)
                Take(rows.rows->Write(keyless, std::vector { Quantity(1) }));
        }
        QCOMPARE(seen.join(u' '), u"a b c d -"_s);
    }

    void recordsOfOneNameAreWalkedOneByOne()
    {
        Rows rows;
        std::vector<ObjectId> walk;
        for (const QString& name : { u"a"_s, u"b"_s, u"b"_s, u"b"_s, u"c"_s })
            walk.push_back(rows.Add({ Text(name) }));
        walk.push_back(rows.Add({ Quantity(1) }));
        walk.push_back(rows.Add({ Quantity(1) }));
        walk.push_back(kNoObject);
        QCOMPARE(Take(rows.rows->SeekFirst()), walk.front());
        for (size_t i = 1; i < walk.size(); ++i)
            QCOMPARE(Take(rows.rows->SeekNext(1)), walk[i]);
        for (size_t i = walk.size() - 1; i-- > 0;)
            QCOMPARE(Take(rows.rows->SeekNext(-1)), walk[i]);
    }

    void aWalkGoesBothWays()
    {
        Rows rows;
        std::vector<ObjectId> in;
        for (const QString& name : { u"a"_s, u"b"_s, u"c"_s })
            in.push_back(rows.Add({ Text(name) }));
        in.push_back(rows.Add({ Quantity(1) }));
        Database& database = *rows.rows;
        QCOMPARE(Take(database.SeekFirst()), in[0]);
        QCOMPARE(Take(database.SeekNext(3)), in[3]);
        QCOMPARE(Take(database.SeekNext(-1)), in[2]);
        QCOMPARE(Take(database.SeekNext(-2)), in[0]);
        QCOMPARE(Take(database.SeekNext(9)), kNoObject);
        QCOMPARE(Take(database.SeekNext(1)), kNoObject);
        QCOMPARE(Take(database.SeekNext(-1)), in[3]);
        QCOMPARE(Take(database.SeekTo(in[1])), in[1]);
        QCOMPARE(Take(database.SeekNext(1)), in[2]);
        QCOMPARE(Take(database.SeekTo(static_cast<ObjectId>(9999))), kNoObject);
        // One that was deleted cannot be read but is stepped from.
        Take(database.SeekTo(in[1]));
        QVERIFY(database.DeleteRecord(in[1]).IsOk());
        QCOMPARE(database.ReadAll().Error(), ErrorNumber::NotFound);
        QCOMPARE(Take(database.SeekNext(1)), in[2]);
        QCOMPARE(database.DeleteRecord(in[1]).Error(), ErrorNumber::NotFound);
    }

    void anOpeningStandsAtTheFirstRecord()
    {
        Rows rows;
        QCOMPARE(Take(rows.rows->SeekNext(0)), kNoObject);
        QCOMPARE(rows.rows->ReadAll().Error(), ErrorNumber::NotFound);
        const ObjectId b = rows.Add({ Text(u"b"_s) });
        const ObjectId a = rows.Add({ Text(u"a"_s) });
        rows.Open();
        QCOMPARE(Take(rows.rows->ReadAll()).oid, a);
        QCOMPARE(Take(rows.rows->SeekNext(1)), b);
        rows.Open();
        QCOMPARE(Take(rows.rows->SeekNext(1)), b);
        rows.Open();
        QCOMPARE(Take(rows.rows->SeekNext(-1)), kNoObject);
        rows.Open();
        QVERIFY(rows.rows->DeleteRecord(a).IsOk());
        QCOMPARE(rows.rows->ReadAll().Error(), ErrorNumber::NotFound);
        QCOMPARE(Take(rows.rows->SeekNext(1)), b);
    }

    void writingSomePropertiesLeavesTheOthers()
    {
        Rows rows;
        const ObjectId oid = rows.Add({ Text(u"nails"_s), Quantity(7), { kRowPrice, 0, 2.5 } });
        QCOMPARE(Take(rows.rows->Write(oid, std::vector { Quantity(8) })), oid);
        Take(rows.rows->Write(
            oid, std::vector { PropertyValue { kRowPrice, CEDB_PROPDELETE, {} } }));
        rows.Reopen();
        QCOMPARE(std::get<QString>(rows.Value(oid, kRowName)), u"nails"_s);
        QCOMPARE(std::get<qint32>(rows.Value(oid, kRowQuantity)), 8);
        QVERIFY(std::holds_alternative<std::monostate>(rows.Value(oid, kRowPrice)));
    }

    void readFlagsWhatIsMissing()
    {
        Rows rows;
        rows.Add({ Text(u"x"_s) });
        Take(rows.rows->SeekFirst());
        const std::vector ids { kRowQuantity, kRowName, MakePropertyId(9, CEVT_BLOB) };
        const Record record = Take(rows.rows->Read(ids));
        QCOMPARE(record.values.size(), size_t { 3 });
        QVERIFY(record.values[0].IsMissing() && record.values[2].IsMissing());
        QVERIFY(!record.values[1].IsMissing());
        QCOMPARE(Take(rows.rows->ReadAll()).values.size(), size_t { 1 });
    }

    void identifiersAreNeverUsedAgain()
    {
        Rows rows;
        std::set<ObjectId> seen { rows.oid };
        for (int i = 0; i < 3; ++i) {
            const ObjectId oid = rows.Add({ Text(u"x"_s) });
            QVERIFY(seen.insert(oid).second);
            QVERIFY(rows.rows->DeleteRecord(oid).IsOk());
            rows.Reopen();
        }
    }

    void aRolledBackTransactionLeavesNothing()
    {
        Rows rows;
        QVERIFY(rows.volume->BeginTransaction().IsOk());
        QCOMPARE(rows.volume->BeginTransaction().Error(), ErrorNumber::AlreadyExists);
        rows.Add({ Text(u"x"_s), { kUndeclared, 0, QByteArray("b") } });
        Take(rows.volume->CreateDatabase(u"other"_s, kRowsType, kRowSpecs, kByRowName));
        QVERIFY(rows.volume->EndTransaction(false).IsOk());
        QCOMPARE(Take(rows.rows->RecordCount()), 0);
        QCOMPARE(Take(rows.volume->Databases()).size(), size_t { 1 });
        const ObjectId oid = rows.Add({ { kUndeclared, 0, QByteArray("c") } });
        rows.Reopen();
        QCOMPARE(std::get<QByteArray>(rows.Value(oid, kUndeclared)), QByteArray("c"));
        QCOMPARE(rows.rows->Properties().size(), kRowSpecs.size() - 1);
        QVERIFY(rows.rows->Has(kUndeclared));
        QVERIFY(Take(rows.volume->Check()).empty());
    }

    void aFailureInATransactionLeavesNothingOfItself()
    {
        Rows rows;
        QVERIFY(rows.volume->BeginTransaction().IsOk());
        rows.Add({ Text(u"a"_s) });
        std::vector<PropertySpec> specs;
        for (quint16 i = 0; i < 511; ++i)
            specs.push_back({ MakePropertyId(i, CEVT_I4), QString(64, u'\u00e4') });
        const auto create
            = [&] { return rows.volume->CreateDatabase(u"wide"_s, kRowsType, specs, {}).Error(); };
        specs.push_back({ MakePropertyId(511, CEVT_I4), u"n"_s });
        QCOMPARE(create(), ErrorNumber::InvalidParameter);
        const std::vector wrongType { Text(u"c"_s), PropertyValue { kUndeclared, 0, u"text"_s } };
        QCOMPARE(rows.rows->Write(kNoObject, wrongType).Error(), ErrorNumber::InvalidParameter);
        rows.Add({ Text(u"b"_s) });
        QVERIFY(rows.volume->EndTransaction(true).IsOk());
        // A database that proves too wide when it is half made undoes the rest too.
        specs.pop_back();
        QVERIFY(rows.volume->BeginTransaction().IsOk());
        rows.Add({ Text(u"c"_s) });
        QCOMPARE(create(), ErrorNumber::BadLength);
        QCOMPARE(rows.rows->Write(kNoObject, std::vector { Text(u"d"_s) }).Error(),
            ErrorNumber::InvalidHandle);
        QCOMPARE(rows.volume->EndTransaction(true).Error(), ErrorNumber::InvalidHandle);
        rows.Add({ Text(u"e"_s) });
        QCOMPARE(Take(rows.volume->Databases()).size(), size_t { 1 });
        rows.Reopen();
        QCOMPARE(rows.Names(), u"a b e"_s);
        QVERIFY(Take(rows.volume->Check()).empty());
    }

    void refusals()
    {
        Rows rows;
        const auto create = [&](const QString& name, const std::vector<PropertySpec>& specs,
                                const std::vector<SortOrder>& orders) {
            return rows.volume->CreateDatabase(name, kRowsType, specs, orders).Error();
        };
        QCOMPARE(create(u"rows"_s, kRowSpecs, kByRowName), ErrorNumber::DuplicateName);
        QCOMPARE(create(u"x"_s, { { kRowName, u"a"_s }, { kRowName, u"b"_s } }, {}),
            ErrorNumber::AlreadyExists);
        QCOMPARE(create(u"x"_s, {}, {}), ErrorNumber::InvalidParameter);
        QCOMPARE(create(u"x"_s, { { kRowQuantity, u"a"_s } }, kByRowName),
            ErrorNumber::InvalidParameter);
        const auto write = [&](ObjectId oid, const std::vector<PropertyValue>& values) {
            return rows.rows->Write(oid, values).Error();
        };
        QCOMPARE(write(kNoObject, {}), ErrorNumber::InvalidParameter);
        QCOMPARE(write(kNoObject, { Quantity(1), Quantity(2) }), ErrorNumber::AlreadyExists);
        QCOMPARE(
            write(kNoObject, { { kRowQuantity, 0, u"text"_s } }), ErrorNumber::InvalidParameter);
        QCOMPARE(
            write(kNoObject, { { MakePropertyId(1, 99), 0, 1 } }), ErrorNumber::InvalidParameter);
        QCOMPARE(write(kNoObject, { Text(u"x"_s), { MakePropertyId(1, CEVT_I4), 0, 1 } }),
            ErrorNumber::InvalidParameter);
        QCOMPARE(write(static_cast<ObjectId>(9999), { Quantity(1) }), ErrorNumber::NotFound);
        QCOMPARE(rows.volume->OpenDatabase(u"rows"_s, { kRowQuantity }).Error(),
            ErrorNumber::InvalidParameter);
        QCOMPARE(rows.volume->EndTransaction(true).Error(), ErrorNumber::InvalidHandle);
        QCOMPARE(rows.volume->DeleteDatabase(rows.oid).Error(), ErrorNumber::SharingViolation);
        QCOMPARE(rows.volume->DeleteDatabase(static_cast<ObjectId>(9999)).Error(),
            ErrorNumber::NotFound);
        QCOMPARE(Take(rows.rows->RecordCount()), 0);
        rows.rows.reset();
        QVERIFY(rows.volume->DeleteDatabase(rows.oid).IsOk());
        QCOMPARE(rows.volume->OpenDatabase(u"rows"_s, kByRowName.front()).Error(),
            ErrorNumber::FileNotFound);
    }

    void scansGiveEveryRecordOnce()
    {
        Rows rows;
        rows.Add({ Text(u"b"_s), Quantity(2) });
        rows.Add({ Quantity(3) });
        rows.Add({ Text(u"a"_s) });
        const std::vector ids { kRowQuantity, MakePropertyId(9, CEVT_BLOB) };
        const auto counts = [&](ScanOrder order) {
            QStringList texts;
            const auto done = rows.rows->Scan(ids, order, [&](ObjectId, auto values) {
                texts << (values[0].IsMissing()
                        ? u"-"_s
                        : QString::number(std::get<qint32>(values[0].value)));
                return values[1].IsMissing();
            });
            return done.IsOk() ? texts : QStringList();
        };
        // Once the visitor has enough the scan ends, and another can begin.
        for (const ScanOrder order : { ScanOrder::Sorted, ScanOrder::Any }) {
            int visits = 0;
            const auto stopped = rows.rows->Scan(ids, order, [&](ObjectId, auto) {
                ++visits;
                return false;
            });
            QVERIFY(stopped.IsOk());
            QCOMPARE(visits, 1);
            const auto failing = [](ObjectId, auto) -> bool { throw std::bad_alloc(); };
            QVERIFY_THROWS_EXCEPTION(
                std::bad_alloc, static_cast<void>(rows.rows->Scan(ids, order, failing).IsOk()));
        }
        // A visitor may scan.
        QStringList pairs;
        const auto nested = rows.rows->Scan(ids, ScanOrder::Any, [&](ObjectId outer, auto) {
            const auto inner = rows.rows->Scan(ids, ScanOrder::Any, [&](ObjectId oid, auto) {
                pairs << u"%1%2"_s.arg(quint32(outer)).arg(quint32(oid));
                return oid != outer;
            });
            return inner.IsOk();
        });
        QVERIFY(nested.IsOk());
        QCOMPARE(pairs.size(), 1 + 2 + 3);
        QCOMPARE(counts(ScanOrder::Sorted), QStringList({ u"-"_s, u"2"_s, u"3"_s }));
        QCOMPARE(counts(ScanOrder::Any), QStringList({ u"2"_s, u"3"_s, u"-"_s }));
    }

    void aListingFollowsEveryWrite()
    {
        Rows rows;
        const auto names = [&] {
            QString text;
            for (const ObjectId oid : Take(rows.rows->ListRecords())) {
                const auto found = rows.rows->SeekTo(oid);
                const auto record = rows.rows->Read(std::array { kRowName });
                text += found && record ? std::get<QString>(record->values.front().value) : u"?"_s;
            }
            return text;
        };
        const ObjectId b = rows.Add({ Text(u"b"_s), Quantity(1) });
        QCOMPARE(names(), u"b"_s);
        const ObjectId a = rows.Add({ Text(u"a"_s) });
        QCOMPARE(names(), u"ab"_s);
        QVERIFY(rows.rows->Write(b, std::array { Quantity(2) }).IsOk());
        QCOMPARE(names(), u"ab"_s);
        QVERIFY(rows.volume->BeginTransaction().IsOk());
        QVERIFY(rows.rows->Write(a, std::array { Text(u"c"_s) }).IsOk());
        QCOMPARE(names(), u"bc"_s);
        QVERIFY(rows.volume->EndTransaction(false).IsOk());
        QCOMPARE(names(), u"ab"_s);
        QVERIFY(rows.rows->DeleteRecord(a).IsOk());
        QCOMPARE(names(), u"b"_s);
    }
};

QUILLORY_TEST(QCoreApplication, PropertyDatabaseTest)
#include "property_database_test.moc"

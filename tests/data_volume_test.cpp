// SPDX-License-Identifier: MIT
#include "store/data_volume.h"
#include "tests/test_program.h"

#include <QTemporaryDir>

#include <functional>
#include <memory>

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

constexpr DatabaseType kType { 71990002 };
constexpr PropertyId kName = MakePropertyId(10001, CEVT_LPWSTR);
const std::vector<PropertySpec> kSpecs { { kName, u"Name"_s } };
const std::vector<SortOrder> kByName { { kName } };

} // namespace

class DataVolumeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingWorksBeforeMounting();
    void everyFailureLeavesItsNumber_data();
    void everyFailureLeavesItsNumber();
    void aWriteThatTheFileIsNotToBlameForIsNotTold_data();
    void aWriteThatTheFileIsNotToBlameForIsNotTold();
    void openingATypeThatIsOpenOpensNothingElse();
    void theDestructorRollsBackWhatWasNotCommitted();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<DataVolume> m_volume;

    void Remount()
    {
        m_volume = std::make_unique<DataVolume>();
        QCOMPARE(m_volume->Mount(m_folder->filePath(u"d.idb"_s), Disposition::OpenAlways),
            ErrorNumber::None);
        QVERIFY(m_volume->OpenSession());
    }
};

void DataVolumeTest::init()
{
    m_volume.reset();
    m_folder = std::make_unique<QTemporaryDir>();
}

void DataVolumeTest::nothingWorksBeforeMounting()
{
    DataVolume volume;
    QVERIFY(volume.Unmount());
    QVERIFY(!volume.OpenSession() && !volume.Flush() && !volume.BeginTransaction());
    QVERIFY(!volume.Exists(kType) && !volume.Open(u"x"_s, kType, kByName.front()));
    QCOMPARE(volume.Create(u"x"_s, kType, kSpecs, kByName), kNoObject);
    QCOMPARE(volume.RecordCount(kType), -1);
    QCOMPARE(volume.SeekFirst(kType), kNoObject);
    QVERIFY(!volume.ReadAll(kType));
    QCOMPARE(volume.LastError(), ErrorNumber::InvalidHandle);
}

void DataVolumeTest::everyFailureLeavesItsNumber_data()
{
    using Operation = std::function<bool(DataVolume & volume)>;
    QTest::addColumn<Operation>("isDone");
    QTest::addColumn<bool>("isMounted");
    QTest::addColumn<ErrorNumber>("error");
    constexpr auto kMissing = static_cast<ObjectId>(9999);
    const auto add = [](const char* name, const Operation& isDone, bool isMounted = false) {
        QTest::newRow(name) << isDone << isMounted
                            << (isMounted ? ErrorNumber::NotFound : ErrorNumber::InvalidHandle);
    };
    add("open a session", [](DataVolume& volume) { return volume.OpenSession(); });
    add("flush", [](DataVolume& volume) { return volume.Flush(); });
    add("list", [](DataVolume& volume) { return !volume.DatabasesOf(kType).empty(); });
    add("make", [](DataVolume& volume) {
        return volume.Create(u"y"_s, kType, kSpecs, kByName) != kNoObject;
    });
    add("name", [](DataVolume& volume) { return !volume.DatabaseName(kMissing).isEmpty(); });
    add("rename",
        [](DataVolume& volume) { return volume.RenameDatabase(kMissing, u"y"_s, kType); });
    add("delete", [](DataVolume& volume) { return volume.DeleteDatabase(kMissing); });
    add("begin", [](DataVolume& volume) { return volume.BeginTransaction(); });
    add("end", [](DataVolume& volume) { return volume.EndTransaction(true); });
    add("seek", [](DataVolume& volume) { return volume.SeekTo(kType, kMissing) != kNoObject; });
    add(
        "seek what is not there",
        [](DataVolume& volume) { return volume.SeekTo(kType, kMissing) != kNoObject; }, true);
    add(
        "name what is not there",
        [](DataVolume& volume) { return !volume.DatabaseName(kMissing).isEmpty(); }, true);
}

void DataVolumeTest::everyFailureLeavesItsNumber()
{
    QFETCH(std::function<bool(DataVolume & volume)>, isDone);
    QFETCH(bool, isMounted);
    Remount();
    m_volume->Create(u"x"_s, kType, kSpecs, kByName);
    QVERIFY(m_volume->Open(u"x"_s, kType, kByName.front()));
    // The number of an earlier failure.
    QCOMPARE(m_volume->Create(u"x"_s, kType, kSpecs, kByName), kNoObject);
    QCOMPARE(m_volume->LastError(), ErrorNumber::DuplicateName);
    if (!isMounted)
        QVERIFY(m_volume->Unmount());
    QVERIFY(!isDone(*m_volume));
    QTEST(m_volume->LastError(), "error");
}

void DataVolumeTest::aWriteThatTheFileIsNotToBlameForIsNotTold_data()
{
    QTest::addColumn<qsizetype>("length");
    QTest::addColumn<VolumeAccess>("access");
    QTest::addColumn<ErrorNumber>("error");
    QTest::addColumn<int>("told");
    QTest::newRow("a text that is too long")
        << (qsizetype { 65 } << 20) << VolumeAccess::Exclusive << ErrorNumber::BadLength << 0;
    QTest::newRow("a file open for reading")
        << qsizetype { 1 } << VolumeAccess::ReadOnly << ErrorNumber::AccessDenied << 1;
}

void DataVolumeTest::aWriteThatTheFileIsNotToBlameForIsNotTold()
{
    QFETCH(qsizetype, length);
    QFETCH(VolumeAccess, access);
    Remount();
    m_volume->Create(u"x"_s, kType, kSpecs, kByName);
    m_volume = std::make_unique<DataVolume>();
    QCOMPARE(m_volume->Mount(m_folder->filePath(u"d.idb"_s), Disposition::OpenExisting, access),
        ErrorNumber::None);
    QVERIFY(m_volume->OpenSession() && m_volume->Open(u"x"_s, kType, kByName.front()));
    int told = 0;
    m_volume->SetWriteFailureListener([&told](ErrorNumber) { ++told; });
    QCOMPARE(m_volume->Write(kType, kNoObject,
                 std::vector { PropertyValue { kName, 0, QString(length, u'x') } }),
        kNoObject);
    QTEST(m_volume->LastError(), "error");
    QTEST(told, "told");
}

void DataVolumeTest::openingATypeThatIsOpenOpensNothingElse()
{
    Remount();
    QCOMPARE(static_cast<quint32>(m_volume->Create(u"none"_s, kType, {}, {})), 87U);
    QVERIFY(!m_volume->Exists(kType));
    const ObjectId first = m_volume->Create(u"first"_s, kType, kSpecs, kByName);
    m_volume->Create(u"second"_s, kType, kSpecs, kByName);
    const NotifyRequest request {};
    QVERIFY(m_volume->Open(u"first"_s, kType, kByName.front(), 0, &request));
    QCOMPARE(m_volume->PropertyCount(kType), 1);
    QCOMPARE(m_volume->PropertySpecs(kType, 5).size(), size_t { 1 });
    QVERIFY(m_volume->Open(u"second"_s, kType, kByName.front()));
    QVERIFY(m_volume->Open(u"third"_s, kType, kByName.front()));
    QCOMPARE(m_volume->DatabaseOid(kType), first);
    m_volume->Close(kType);
    QVERIFY(!m_volume->Open(u"third"_s, kType, kByName.front()));
    QVERIFY(m_volume->Exists(kType));
}

void DataVolumeTest::theDestructorRollsBackWhatWasNotCommitted()
{
    Remount();
    m_volume->Create(u"kept"_s, kType, kSpecs, kByName);
    QVERIFY(m_volume->BeginTransaction());
    QVERIFY(!m_volume->BeginTransaction());
    m_volume->Create(u"lost"_s, kType, kSpecs, kByName);
    m_volume.reset();
    Remount();
    QVERIFY(m_volume->Open(u"kept"_s, kType, kByName.front()));
    m_volume->Close(kType);
    QVERIFY(!m_volume->Open(u"lost"_s, kType, kByName.front()));
}

QUILLORY_TEST(QCoreApplication, DataVolumeTest)
#include "data_volume_test.moc"

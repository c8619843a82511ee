#include "store/data_volume.h"

#include <QTemporaryDir>
#include <QTest>

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
    void creatingWithoutPropertiesAnswers87AndCreatesNothing();
    void openingATypeThatIsOpenOpensNothingElse();
    void notificationRequestsAreAccepted();
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

void DataVolumeTest::creatingWithoutPropertiesAnswers87AndCreatesNothing()
{
    Remount();
    QCOMPARE(static_cast<quint32>(m_volume->Create(u"x"_s, kType, {}, {})), 87U);
    QVERIFY(!m_volume->Exists(kType));
}

void DataVolumeTest::openingATypeThatIsOpenOpensNothingElse()
{
    Remount();
    const ObjectId first = m_volume->Create(u"first"_s, kType, kSpecs, kByName);
    m_volume->Create(u"second"_s, kType, kSpecs, kByName);
    QVERIFY(m_volume->Open(u"first"_s, kType, kByName.front()));
    QVERIFY(m_volume->Open(u"second"_s, kType, kByName.front()));
    QVERIFY(m_volume->Open(u"third"_s, kType, kByName.front()));
    QCOMPARE(m_volume->DatabaseOid(kType), first);
    m_volume->Close(kType);
    QVERIFY(!m_volume->Open(u"third"_s, kType, kByName.front()));
    QVERIFY(m_volume->Exists(kType));
}

void DataVolumeTest::notificationRequestsAreAccepted()
{
    Remount();
    m_volume->Create(u"x"_s, kType, kSpecs, kByName);
    const NotifyRequest request {};
    QVERIFY(m_volume->Open(u"x"_s, kType, kByName.front(), 0, &request));
    QCOMPARE(m_volume->PropertyCount(kType), 1);
    QCOMPARE(m_volume->PropertySpecs(kType, 5).size(), size_t { 1 });
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

QTEST_GUILESS_MAIN(DataVolumeTest)
#include "data_volume_test.moc"

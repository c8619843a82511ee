// SPDX-License-Identifier: MIT
#include "store/data_volume.h"
#include "tests/test_program.h"

#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <utility>

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
    void init()
    {
        m_volume.reset();
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void everyFailureLeavesItsNumber()
    {
        constexpr auto kMissing = static_cast<ObjectId>(9999);
        using Operation = std::function<bool(DataVolume & volume)>;
        const Operation name
            = [](auto& volume) { return !volume.DatabaseName(kMissing).isEmpty(); };
        const Operation seek
            = [](auto& volume) { return volume.SeekTo(kType, kMissing) != kNoObject; };
        // The first ones in a volume that is mounted no more, the others in one that is.
        const std::vector<Operation> operations { &DataVolume::OpenSession, &DataVolume::Flush,
            &DataVolume::BeginTransaction, name, seek,
            [](auto& volume) { return volume.EndTransaction(true); },
            [](auto& volume) { return volume.Exists(kType); },
            [](auto& volume) { return !volume.DatabasesOf(kType).empty(); },
            [](auto& volume) { return volume.Create(u"y"_s, kType, kSpecs, kByName) != kNoObject; },
            [](auto& volume) { return volume.RenameDatabase(kMissing, u"y"_s, kType); },
            [](auto& volume) { return volume.DeleteDatabase(kMissing); },
            [](auto& volume) { return volume.Open(u"x"_s, kType, kByName.front()); },
            [](auto& volume) { return volume.RecordCount(kType) != -1; },
            [](auto& volume) { return volume.SeekFirst(kType) != kNoObject; },
            [](auto& volume) { return bool(volume.ReadAll(kType)); }, name, seek };
        Remount();
        m_volume->Create(u"x"_s, kType, kSpecs, kByName);
        for (size_t i = 0; i < operations.size(); ++i) {
            const bool isMounted = i + 2 >= operations.size();
            Remount();
            QVERIFY(m_volume->Open(u"x"_s, kType, kByName.front()));
            // The number of an earlier failure.
            QCOMPARE(m_volume->Create(u"x"_s, kType, kSpecs, kByName), kNoObject);
            QCOMPARE(m_volume->LastError(), ErrorNumber::DuplicateName);
            if (!isMounted)
                QVERIFY(m_volume->Unmount());
            QVERIFY(!operations[i](*m_volume));
            QCOMPARE(m_volume->LastError(),
                isMounted ? ErrorNumber::NotFound : ErrorNumber::InvalidHandle);
        }
    }

    void aWriteThatTheFileIsNotToBlameForIsNotTold()
    {
        Remount();
        m_volume->Create(u"x"_s, kType, kSpecs, kByName);
        for (const auto access : { VolumeAccess::Exclusive, VolumeAccess::ReadOnly }) {
            m_volume = std::make_unique<DataVolume>();
            QCOMPARE(
                m_volume->Mount(m_folder->filePath(u"d.idb"_s), Disposition::OpenExisting, access),
                ErrorNumber::None);
            QVERIFY(m_volume->OpenSession() && m_volume->Open(u"x"_s, kType, kByName.front()));
            int told = 0;
            m_volume->SetWriteFailureListener([&told](ErrorNumber) { ++told; });
            // Too long a text, or a file that is open for reading.
            const bool isTooLong = access == VolumeAccess::Exclusive;
            const QString text(isTooLong ? qsizetype { 65 } << 20 : 1, u'x');
            QCOMPARE(
                m_volume->Write(kType, kNoObject, std::vector { PropertyValue { kName, 0, text } }),
                kNoObject);
            QCOMPARE(m_volume->LastError(),
                isTooLong ? ErrorNumber::BadLength : ErrorNumber::AccessDenied);
            QCOMPARE(told, isTooLong ? 0 : 1);
        }
    }

    void openingATypeThatIsOpenOpensNothingElse()
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

    void theDestructorRollsBackWhatWasNotCommitted()
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

QUILLORY_TEST(QCoreApplication, DataVolumeTest)
#include "data_volume_test.moc"

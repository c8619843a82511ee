// SPDX-License-Identifier: MIT
#include "tests/file_bytes.h"
#include "tests/test_program.h"
#include "tests/volume_fixture.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

namespace {

constexpr PropertyId kTitle = MakePropertyId(10001, CEVT_LPWSTR);
constexpr DatabaseType kTitlesType { 71990002 };
const std::vector<PropertySpec> kTitleSpecs { { kTitle, u"Name"_s } };
const std::vector<SortOrder> kByTitle { { kTitle } };

/// A whole data file with some rows, closed.
QByteArray SampleFile()
{
    VolumeFixture fixture;
    fixture.Mount();
    Take(fixture.volume->CreateDatabase(u"rows"_s, kTitlesType, kTitleSpecs, kByTitle));
    {
        const auto rows = Take(fixture.volume->OpenDatabase(u"rows"_s, kByTitle.front()));
        for (int i = 0; i < 200; ++i) {
            const QString name = QString::number(i).repeated(20);
            Take(rows->Write(kNoObject, std::vector { PropertyValue { kTitle, 0, name } }));
        }
    }
    fixture.volume.reset();
    return FileBytes(fixture.Path());
}

/// Reads everything that the file holds; the first failure, or None.
ErrorNumber ReadThrough(const QString& path)
{
    auto volume = Volume::Mount(path, Disposition::OpenExisting, VolumeAccess::Exclusive);
    if (!volume)
        return volume.Error();
    for (const auto& info : Take((*volume)->Databases())) {
        const auto rows = (*volume)->OpenDatabase(info.name, kByTitle.front());
        if (!rows)
            return rows.Error();
        const std::vector ids { kTitle };
        for (const ScanOrder order : { ScanOrder::Sorted, ScanOrder::Any }) {
            const auto done = (*rows)->Scan(ids, order, [](ObjectId, auto) { return true; });
            if (!done)
                return done.Error();
        }
    }
    const auto faults = (*volume)->Check();
    if (!faults)
        return faults.Error();
    return faults->empty() ? ErrorNumber::None : ErrorNumber::FileCorrupt;
}

} // namespace

class VolumeFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFolderThatTakesNoFileIsTold()
    {
        const VolumeFixture fixture;
        const QByteArray folder = QFile::encodeName(fixture.Folder());
        QCOMPARE(chmod(folder.constData(), 0555), 0);
        const pid_t process = fork();
        if (process == 0) {
            // Nothing is forbidden to root.
            constexpr uid_t kNobody = 65534;
            if (geteuid() == 0 && setresuid(kNobody, kNobody, kNobody) != 0)
                _exit(127);
            const auto made
                = Volume::Mount(fixture.Path(), Disposition::OpenAlways, VolumeAccess::Exclusive);
            _exit(static_cast<int>(made.Error()));
        }
        int status = 0;
        waitpid(process, &status, 0);
        QCOMPARE(chmod(folder.constData(), 0755), 0);
        QCOMPARE(WEXITSTATUS(status), 5);
    }

    void aReaderSeesWhatAWriterMakes()
    {
        VolumeFixture fixture;
        fixture.Mount();
        fixture.volume.reset();
        const auto reader = Take(
            Volume::Mount(fixture.Path(), Disposition::OpenExisting, VolumeAccess::ReadOnly));
        QCOMPARE(
            reader->OpenDatabase(u"rows"_s, kByTitle.front()).Error(), ErrorNumber::FileNotFound);
        // Emulators of other processors know this call, not the one by which QProcess starts a
        // program.
        const QString makeDatabase = u"'%1' volume_file_test --make '%2'"_s.arg(
            QCoreApplication::applicationFilePath(), fixture.Path());
        QCOMPARE(std::system(qPrintable(makeDatabase)), 0);
        QCOMPARE(Take(reader->Databases()).size(), size_t { 1 });
        QVERIFY(reader->OpenDatabase(u"rows"_s, kByTitle.front()).IsOk());
    }

    void aFileCutShortIsRefused()
    {
        const QByteArray sample = SampleFile();
        const VolumeFixture fixture;
        for (qsizetype size = 512; size < sample.size(); size += 512) {
            WriteFileBytes(fixture.Path(), sample.left(size));
            QCOMPARE(ReadThrough(fixture.Path()), ErrorNumber::FileCorrupt);
        }
    }

    void aBackupIsAWholeVolumeAndReplacesNothing()
    {
        VolumeFixture fixture;
        WriteFileBytes(fixture.Path(), SampleFile());
        constexpr auto kMode = QFileDevice::ReadOwner | QFileDevice::WriteOwner
            | QFileDevice::ReadUser | QFileDevice::WriteUser | QFileDevice::WriteOther;
        QVERIFY(QFile::setPermissions(fixture.Path(), kMode));
        fixture.Mount(Disposition::OpenExisting);
        const QString copy = fixture.Path(u"copy.idb"_s);
        QVERIFY(fixture.volume->Backup(copy).IsOk());
        QCOMPARE(QFile::permissions(copy), QFile::permissions(fixture.Path()));
        QCOMPARE(fixture.volume->Backup(copy).Error(), ErrorNumber::FileExists);
        QCOMPARE(fixture.volume->Backup(fixture.Path(u"none/copy.idb"_s)).Error(),
            ErrorNumber::PathNotFound);
        QCOMPARE(ReadThrough(copy), ErrorNumber::None);
        QCOMPARE(QDir(fixture.Folder()).entryList(QDir::Files | QDir::Hidden).size(), 2);
    }
};

/// Started with --make it is the second program of a test.
static int RunOrMake(int argc, char** argv)
{
    if (argc != 3 || QByteArrayView(argv[1]) != "--make")
        return RunTest<QCoreApplication, VolumeFileTest>(argc, argv);
    const auto volume = Volume::Mount(
        QFile::decodeName(argv[2]), Disposition::OpenExisting, VolumeAccess::Exclusive);
    if (volume)
        Take((*volume)->CreateDatabase(u"rows"_s, kTitlesType, kTitleSpecs, kByTitle));
    return static_cast<int>(volume.Error());
}

static const TestProgram kTest(__FILE__, RunOrMake);
#include "volume_file_test.moc"

// SPDX-License-Identifier: MIT
#include "store/kept_copies.h"

#include "propdb/volume_path.h"
#include "store/user_folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTimeZone>

#include <sys/statvfs.h>

#include <algorithm>
#include <optional>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSuffix = ".idb"_L1;
constexpr auto kOriginName = "copy-of.txt"_L1;
constexpr auto kHeldName = "held-back.txt"_L1;
constexpr auto kGoneName = "gone-since.txt"_L1;
/// A copy's name is its time; the order of the names is that of the times.
constexpr QStringView kDateFormat = u"yyyyMMdd";
constexpr QStringView kTimeFormat = u"'T'HHmmsszzz'Z'";

QString NameAt(const QDateTime& time)
{
    const QDateTime utc = time.toUTC();
    return utc.date().toString(kDateFormat) + utc.time().toString(kTimeFormat) + kSuffix;
}

/// Invalid for a name that is none of a copy.
QDateTime TimeOf(const QString& name)
{
    // Read together, date and time are local time at first, which leaves out an hour each spring.
    const QString digits = name.chopped(kSuffix.size());
    const QDate date = QDate::fromString(digits.left(kDateFormat.size()), kDateFormat);
    const QTime time = QTime::fromString(digits.mid(kDateFormat.size()), kTimeFormat);
    return time.isValid() ? QDateTime(date, time, QTimeZone::utc()).toUTC() : QDateTime();
}

/// The folder for the copies of one data file; empty if its path leads nowhere.
QString SetFolder(const QString& path, const QString& folder)
{
    const auto real = ResolveVolumePath(path);
    if (!real || folder.isEmpty())
        return {};
    constexpr qsizetype kNameCharacters = 16;
    const QString name = QFileInfo(QFile::decodeName(*real)).completeBaseName();
    return QDir(folder).filePath(name.left(kNameCharacters) + u'-' + VolumeKey(*real));
}

/// The names of the copies that are held back, the latest first.
QStringList HeldIn(const QDir& set)
{
    QFile file(set.filePath(kHeldName));
    return file.open(QIODevice::ReadOnly)
        ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
        : QStringList();
}

bool WriteLine(const QString& path, const QString& line)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.setPermissions(kOwnerOnly)
        && file.write(line.toUtf8() + '\n') > 0 && file.commit();
}

/// Without its end; empty if there is none.
QString ReadLine(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readLine()).chopped(1)
                                          : QString();
}

/// Says in words whose copies these are, for whoever looks into the folder.
bool WriteOrigin(const QDir& set, const QString& path)
{
    return WriteLine(set.filePath(kOriginName), QFileInfo(path).absoluteFilePath());
}

/// The bytes that this user may still fill where the folder lies; none if the system does not tell.
std::optional<quint64> FreeRoom(const QString& folder)
{
    // Of the folder itself: the list of what is mounted can be missing, or lack the folder's part.
    struct statvfs status
    { };
    if (statvfs(QFile::encodeName(folder).constData(), &status) != 0 || status.f_blocks == 0)
        return std::nullopt;
    return quint64 { status.f_bavail } * status.f_frsize;
}

bool HasRoom(const QString& folder, const QString& path)
{
    // A copy must not take the last of a medium that the data file may share.
    constexpr qint64 kLeastLeft = 16 << 20;
    const auto wanted = static_cast<quint64>(QFileInfo(path).size() + kLeastLeft);
    return FreeRoom(folder).value_or(wanted) >= wanted;
}

std::vector<KeptCopy> CopiesIn(const QDir& set)
{
    std::vector<KeptCopy> copies;
    const auto files = set.entryInfoList({ u'*' + kSuffix }, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        const QDateTime time = TimeOf(file.fileName());
        if (time.isValid())
            copies.push_back({ file.filePath(), time, file.size() });
    }
    std::reverse(copies.begin(), copies.end());
    return copies;
}

/// Removes copies beyond the number that is kept and the room for older ones, and what an
/// interrupted run left unfinished.
void Prune(QDir& set, int count, qint64 room = kRoomForOlderCopies)
{
    const auto copies = CopiesIn(set);
    const QStringList held = count == 0 ? QStringList() : HeldIn(set);
    qint64 bytes = 0;
    for (size_t i = 0; i < copies.size(); ++i) {
        bytes += copies[i].bytes;
        const bool isWanted = i < static_cast<size_t>(count);
        const bool hasRoom = count > 0 && i < History::kMostStates && bytes <= room;
        if (!isWanted && !hasRoom && !held.contains(QFileInfo(copies[i].path).fileName()))
            QFile::remove(copies[i].path);
    }
    if (held.isEmpty())
        set.remove(kHeldName);
    for (const QString& name : set.entryList({ u'*' + kSuffix + u".new-*"_s }, QDir::Files))
        set.remove(name);
}

/// Drops the copies of files that have been gone for long. A medium may be out for a while.
void DropMissing(const QString& folder, const QDateTime& now)
{
    const QDate today = now.toUTC().date();
    for (const QFileInfo& info : QDir(folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QDir set(info.filePath());
        const QString origin = ReadLine(set.filePath(kOriginName));
        if (origin.isEmpty() || QFileInfo::exists(origin)) {
            set.remove(kGoneName);
            continue;
        }
        const QDate since = QDate::fromString(ReadLine(set.filePath(kGoneName)), Qt::ISODate);
        if (!since.isValid()) {
            static_cast<void>(WriteLine(set.filePath(kGoneName), today.toString(Qt::ISODate)));
        } else if (since.daysTo(today) >= kDaysKeptOfMissing) {
            Prune(set, 0);
            set.remove(kOriginName);
            set.remove(kGoneName);
            set.rmdir(set.path());
        }
    }
}

/// Whether the run has left something to keep.
bool IsWorthACopy(const DataVolume& data, const Volume& volume)
{
    return volume.HasChanged() && (data.HasChangedContent() || !volume.VerifyInPlace());
}

/// The name of the next copy. Behind those there are, also where the clock was once ahead: the copy
/// that is made last must be the newest.
QString NextName(const QDir& set, const QDateTime& now)
{
    const auto copies = CopiesIn(set);
    return NameAt(copies.empty() ? now : std::max(now, copies.front().time.addMSecs(1)));
}

/// The folder for the copies of a data file, ready for one more.
Result<QDir> PrepareSet(const QString& path, const QString& folder, const QDateTime& now, int count)
{
    DropMissing(folder, now);
    const QString setFolder = SetFolder(path, folder);
    if (setFolder.isEmpty())
        return ErrorNumber::PathNotFound;
    if (!MakeUserFolder(setFolder))
        return ErrorNumber::AccessDenied;
    QDir set(setFolder);
    Prune(set, count);
    return set;
}

/// Makes the copy; its path.
Result<QString> AddCopy(
    QDir& set, Volume& volume, const QString& path, const QDateTime& now, int count)
{
    if (!HasRoom(set.path(), path))
        Prune(set, count, 0);
    if (!HasRoom(set.path(), path))
        return ErrorNumber::DiskFull;
    if (!WriteOrigin(set, path))
        return ErrorNumber::WriteFault;
    const QString copy = set.filePath(NextName(set, now));
    QUILLORY_TRY(volume.Backup(copy));
    QFile::setPermissions(copy, kOwnerOnly);
    return copy;
}

/// A copy of these contents. Opens one copy after the other, which takes its time.
std::optional<KeptCopy> FindVersion(
    const QString& path, const QString& folder, const FileVersion& version)
{
    for (const KeptCopy& copy : ListKeptCopies(path, folder)) {
        const auto history = HistoryOf(copy);
        if (history && history->Latest() == version)
            return copy;
    }
    return std::nullopt;
}

/// Keeps contents that there is no copy of, and holds them back.
Result<KeepOutcome> KeepNew(
    Volume& volume, const QString& path, const QString& folder, const QDateTime& now, int count)
{
    if (folder.isEmpty() || count == 0)
        return KeepOutcome::NotNeeded;
    QUILLORY_TRY_VALUE(QDir set, PrepareSet(path, folder, now, count));
    QUILLORY_TRY_VALUE(const QString copy, AddCopy(set, volume, path, now, count));
    HoldBack({ copy, now, 0 });
    Prune(set, count);
    return KeepOutcome::Kept;
}

} // namespace

QString DefaultCopiesFolder()
{
    return UserFolder("XDG_STATE_HOME", u".local/state"_s) + u"/quillory/copies"_s;
}

Result<KeepOutcome> KeepCopy(
    DataVolume& data, const QString& path, const QString& folder, const QDateTime& now, int count)
{
    Volume* volume = data.MountedVolume();
    if (volume == nullptr || folder.isEmpty() || !IsWorthACopy(data, *volume))
        return KeepOutcome::NotNeeded;
    QUILLORY_TRY_VALUE(QDir set, PrepareSet(path, folder, now, count));
    if (count == 0)
        return KeepOutcome::NotNeeded;
    QUILLORY_TRY(AddCopy(set, *volume, path, now, count));
    Prune(set, count);
    return KeepOutcome::Kept;
}

Result<KeepOutcome> KeepShared(
    Volume& volume, const QString& path, const QString& folder, const QDateTime& now, int count)
{
    QUILLORY_TRY_VALUE(const History history, volume.ReadHistory());
    const auto known = FindVersion(path, folder, history.Latest());
    if (!known)
        return KeepNew(volume, path, folder, now, count);
    if (count > 0)
        HoldBack(*known);
    return KeepOutcome::NotNeeded;
}

Result<KeepOutcome> KeepFound(
    Volume& volume, const QString& path, const QString& folder, const QDateTime& now, int count)
{
    QUILLORY_TRY_VALUE(const History history, volume.ReadHistory());
    const bool isKnown = history.Versions().empty() || FindVersion(path, folder, history.Latest());
    return isKnown ? KeepOutcome::NotNeeded : KeepNew(volume, path, folder, now, count);
}

std::optional<History> HistoryOf(const KeptCopy& copy)
{
    const auto volume = Volume::Mount(copy.path, Disposition::OpenExisting, VolumeAccess::ReadOnly);
    const auto history = volume ? (*volume)->ReadHistory() : volume.Error();
    return history ? std::optional(*history) : std::nullopt;
}

std::optional<KeptCopy> FindBase(
    const QString& path, const QString& folder, const History& mine, const History& theirs)
{
    std::optional<KeptCopy> base;
    History latest;
    for (const KeptCopy& copy : ListKeptCopies(path, folder)) {
        const auto history = HistoryOf(copy);
        if (!history || history->Versions().empty() || !mine.Covers(history->Latest())
            || !theirs.Covers(history->Latest()))
            continue;
        // Of two that do not come from each other one is taken that does not hang on the device.
        const bool isNewer = history->Covers(latest.Latest())
            || (!latest.Covers(history->Latest()) && history->Latest() > latest.Latest());
        if (!base || isNewer) {
            base = copy;
            latest = *history;
        }
    }
    return base;
}

void HoldBack(const KeptCopy& copy)
{
    const QFileInfo file(copy.path);
    QStringList names = HeldIn(file.dir());
    names.removeAll(file.fileName());
    names.prepend(file.fileName());
    // Where this cannot be written the copy goes as the others do.
    static_cast<void>(
        WriteLine(file.dir().filePath(kHeldName), names.mid(0, kMostHeldCopies).join(u'\n')));
}

std::vector<KeptCopy> ListKeptCopies(const QString& path, const QString& folder)
{
    const QString setFolder = SetFolder(path, folder);
    return setFolder.isEmpty() ? std::vector<KeptCopy>() : CopiesIn(QDir(setFolder));
}

Result<void> RestoreCopy(const KeptCopy& copy, const QString& target)
{
    const auto volume = Volume::Mount(copy.path, Disposition::OpenExisting, VolumeAccess::ReadOnly);
    return volume ? (*volume)->Backup(target) : volume.Error();
}

} // namespace Quillory

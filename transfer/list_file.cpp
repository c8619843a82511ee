// SPDX-License-Identifier: MIT
#include "transfer/list_file.h"

#include "propdb/volume_path.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <sys/stat.h>

#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Asks by name only: opening the data file and closing it again would drop the locks on it.
bool IsSameFile(const QString& path, const QString& other)
{
    struct stat a
    { };
    struct stat b
    { };
    return stat(QFile::encodeName(path).constData(), &a) == 0
        && stat(QFile::encodeName(other).constData(), &b) == 0 && a.st_dev == b.st_dev
        && a.st_ino == b.st_ino;
}

ListFile Open(std::unique_ptr<QFileDevice> file, const QString& dataFile, QIODevice::OpenMode mode)
{
    const QString path = file->fileName();
    if (IsSameFile(path, dataFile))
        return { nullptr, QCoreApplication::translate("ListFile", "it is the data file itself") };
    if (IsJournalOf(path, dataFile))
        return { nullptr,
            QCoreApplication::translate("ListFile", "it is the name of the data file's journal") };
    if (!file->open(mode | QIODevice::Unbuffered))
        return { nullptr, file->errorString() };
    return { std::move(file), {} };
}

} // namespace

QString ListFile::Commit() const
{
    auto* unfinished = qobject_cast<QSaveFile*>(file.get());
    if (unfinished == nullptr || unfinished->commit())
        return {};
    return unfinished->errorString();
}

ListFile CreateListFile(const QString& path, const QString& dataFile)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return Open(std::make_unique<QFile>(path), dataFile, QIODevice::WriteOnly);
    auto file = std::make_unique<QSaveFile>(path);
    // A file may be writable where its folder is not.
    file->setDirectWriteFallback(true);
    return Open(std::move(file), dataFile, QIODevice::WriteOnly);
}

ListFile OpenListFile(const QString& path, const QString& dataFile)
{
    return Open(std::make_unique<QFile>(path), dataFile, QIODevice::ReadOnly);
}

} // namespace Quillory

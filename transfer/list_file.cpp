// SPDX-License-Identifier: MIT
#include "transfer/list_file.h"

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

ListFile Open(const QString& path, const QString& dataFile, QIODevice::OpenMode mode)
{
    if (IsSameFile(path, dataFile))
        return { nullptr, u"it is the data file itself"_s };
    auto file = std::make_unique<QFile>(path);
    if (!file->open(mode | QIODevice::Unbuffered))
        return { nullptr, file->errorString() };
    return { std::move(file), {} };
}

} // namespace

ListFile CreateListFile(const QString& path, const QString& dataFile)
{
    return Open(path, dataFile, QIODevice::WriteOnly | QIODevice::Truncate);
}

ListFile OpenListFile(const QString& path, const QString& dataFile)
{
    return Open(path, dataFile, QIODevice::ReadOnly);
}

} // namespace Quillory

// SPDX-License-Identifier: MIT
#include "store/user_folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace Quillory {

QString UserFolder(const char* variable, const QString& belowHome)
{
    const QString folder = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(folder) ? folder : QDir::home().filePath(belowHome);
}

bool MakeUserFolder(const QString& folder)
{
    const QFileInfo info(folder);
    if (info.exists())
        return info.isDir() && info.isWritable();
    return MakeUserFolder(info.absolutePath())
        && mkdir(QFile::encodeName(folder).constData(), S_IRWXU) == 0;
}

} // namespace Quillory

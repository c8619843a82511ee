// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

namespace Quillory {

/// The bytes of a file; null if it cannot be read.
inline QByteArray FileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Makes a file of these bytes, or replaces what is in it; ends the program if it cannot.
inline void WriteFileBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
        || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

} // namespace Quillory

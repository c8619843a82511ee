// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>
#include <QtEndian>

namespace Quillory {

/// First bytes of pages of a data file.
constexpr char kIndexLeaf = 0x0A;
constexpr char kTableLeaf = 0x0D;

/// A text as it stands in a data file.
inline QByteArray StoredText(const QString& text)
{
    QByteArray bytes(text.size() * 2, Qt::Uninitialized);
    qToBigEndian<quint16>(text.utf16(), text.size(), bytes.data());
    return bytes;
}

/// Turns each bit of a byte of `text` on the last page of this kind that holds it. The file is not
/// mounted.
inline void DamagePage(const QString& path, char kind, const QString& text)
{
    QFile file(path);
    const QByteArray bytes = file.open(QIODevice::ReadWrite) ? file.readAll() : QByteArray();
    constexpr qsizetype kPageMask = ~qsizetype { 4095 };
    qsizetype place = bytes.lastIndexOf(StoredText(text));
    while (place > 0 && bytes[place & kPageMask] != kind)
        place = bytes.lastIndexOf(StoredText(text), place - 1);
    if (place <= 0 || !file.seek(place) || !file.putChar(static_cast<char>(~bytes[place])))
        qFatal("there is no page to damage");
}

} // namespace Quillory

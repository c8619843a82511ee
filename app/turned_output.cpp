// SPDX-License-Identifier: MIT
#include "app/turned_output.h"

#include "app/settings.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringList>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// A file larger than this was not written here and is not read.
constexpr qint64 kMaxNoteSize = 4096;
constexpr auto kFirstLine = "quillory turned output 1"_L1;

/// Display, output, and the two rotations, a line each after the first one; the last line is empty.
constexpr qsizetype kLineCount = 6;

bool FitsOnALine(const QString& text)
{
    return !text.isEmpty()
        && std::none_of(text.begin(), text.end(), [](QChar c) { return c == u'\n' || c.isNull(); });
}

std::optional<QuarterTurns> ParseTurns(const QString& text)
{
    if (text.size() != 1 || text[0] < u'0' || text[0] > u'3')
        return std::nullopt;
    return text[0].unicode() - u'0';
}

} // namespace

QuarterTurns TurnsOf(quint32 listOrientation)
{
    return listOrientation == kLandscapeRightHanded ? 1 : 3;
}

bool WriteTurnedOutput(const QString& path, const TurnedOutput& turned)
{
    if (!FitsOnALine(turned.display) || !FitsOnALine(turned.output))
        return false;
    const QStringList lines { QString(kFirstLine), turned.display, turned.output,
        QString::number(turned.before), QString::number(turned.after), {} };
    const QByteArray text = lines.join(u'\n').toUtf8();
    // It syncs the file before it puts it in its place.
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

std::optional<TurnedOutput> ReadTurnedOutput(const QString& path)
{
    const QFileInfo info(path);
    QFile file(path);
    // A pipe in the file's place would hold the start up for ever.
    if (!info.isFile() || info.size() > kMaxNoteSize || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    if (lines.size() != kLineCount || lines[0] != kFirstLine || !lines[5].isEmpty())
        return std::nullopt;
    const std::optional<QuarterTurns> before = ParseTurns(lines[3]);
    const std::optional<QuarterTurns> after = ParseTurns(lines[4]);
    if (!FitsOnALine(lines[1]) || !FitsOnALine(lines[2]) || !before || !after)
        return std::nullopt;
    return TurnedOutput { lines[1], lines[2], *before, *after };
}

} // namespace Quillory

// SPDX-License-Identifier: MIT
#pragma once

#include <QChar>
#include <QIODevice>
#include <QString>

#include <vector>

namespace Quillory {

// Tables as text, as RFC 4180 has them: a row per line, fields parted by a comma or another
// separator. Fields stand in quotes where they hold a separator, a quote, which is doubled, or an
// end of a line.

/// Units of a field that are held: as many as the largest record has.
constexpr qsizetype kMaxSeparatedField = 10'485'760;

/// Appends a field. One that is there but empty is quoted, so that it can be told from one that is
/// missing, which is nothing at all.
void AppendSeparatedField(QString& line, const QString& field, QChar separator);

/// A field as it was read.
struct SeparatedField
{
    QString text;
    bool isQuoted = false;
    /// The line in the file on which it begins, from 1 on.
    qint64 line = 1;

    /// Nothing stands between its separators.
    [[nodiscard]] bool IsMissing() const { return text.isEmpty() && !isQuoted; }
};

/// The rows of such a text, one after another. Lines end with LF, CR LF or CR; empty ones are no
/// rows.
class SeparatedReader
{
public:
    /// `source` gives UTF-16, low byte first, with or without a byte-order mark; it is read only
    /// when a row is asked for.
    explicit SeparatedReader(QIODevice& source);

    void SetSeparator(QChar separator) { m_separator = separator; }
    /// Goes to the next row. False at the end and once there is a fault.
    bool Next();
    /// Goes back in front of the row that Next() went to, and forgets that it failed there.
    void GoBack();

    /// Valid until the next call.
    [[nodiscard]] const std::vector<SeparatedField>& Fields() const { return m_fields; }
    /// Why the text could not be read to its end, for a person; empty if it could so far.
    [[nodiscard]] const QString& Fault() const { return m_fault; }
    /// The line that is being read; 0 where the source itself failed.
    [[nodiscard]] qint64 Line() const { return m_line; }

private:
    QIODevice& m_source;
    bool m_isAtStart = true;
    QChar m_separator = u',';
    /// What was read and is still needed.
    QString m_text;
    qsizetype m_place = 0;
    qint64 m_line = 1;
    /// Where the current row begins.
    qsizetype m_rowPlace = 0;
    qint64 m_rowLine = 1;
    std::vector<SeparatedField> m_fields;
    QString m_fault;
    QString m_sourceFault;

    [[nodiscard]] bool HasUnit();
    [[nodiscard]] bool IsAtLineEnd();
    bool SkipLineEnd();
    void Take(QString& text);
    void ReadQuoted(SeparatedField& field);
    void ReadField();
    void ReadRow();
};

} // namespace Quillory

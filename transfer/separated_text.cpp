// SPDX-License-Identifier: MIT
#include "transfer/separated_text.h"

#include <QtEndian>

#include <algorithm>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kQuote(u'"');

} // namespace

void AppendSeparatedField(QString& line, const QString& field, QChar separator)
{
    const bool isPlain = !field.isEmpty() && std::ranges::none_of(field, [separator](QChar unit) {
        return unit == separator || unit == kQuote || unit == u'\r' || unit == u'\n'
            || unit == QChar::ByteOrderMark;
    });
    if (isPlain) {
        line += field;
        return;
    }
    QString doubled = field;
    line += kQuote + doubled.replace(kQuote, u"\"\""_s) + kQuote;
}

SeparatedReader::SeparatedReader(QIODevice& source)
    : m_source(source)
{ }

bool SeparatedReader::Next()
{
    // What is in front of the row is let go of now and then, so that each goes once.
    if (m_place > m_text.size() / 2) {
        m_text.remove(0, m_place);
        m_place = 0;
    }
    m_rowPlace = m_place;
    m_rowLine = m_line;
    m_fields.clear();
    while (SkipLineEnd()) { }
    if (m_fault.isEmpty() && HasUnit())
        ReadRow();
    if (!m_sourceFault.isEmpty()) {
        m_fault = m_sourceFault;
        m_line = 0;
    }
    return m_fault.isEmpty() && !m_fields.empty();
}

void SeparatedReader::GoBack()
{
    m_place = m_rowPlace;
    m_line = m_rowLine;
    m_fault.clear();
}

/// Whether there is a unit at the current place.
bool SeparatedReader::HasUnit()
{
    constexpr qint64 kPartBytes = 65'536;
    if (m_place < m_text.size())
        return true;
    QByteArray bytes(kPartBytes, Qt::Uninitialized);
    qint64 size = 0;
    do {
        const qint64 got = m_source.read(bytes.data() + size, size == 0 ? kPartBytes : 1);
        if (got < 0)
            m_sourceFault = m_source.errorString();
        if (got <= 0)
            break;
        size += got;
    } while (size % qsizetype { sizeof(char16_t) } != 0);
    const qsizetype units = size / qsizetype { sizeof(char16_t) };
    const qsizetype before = m_text.size();
    m_text.resize(before + units);
    qFromLittleEndian<quint16>(bytes.constData(), units, m_text.data() + before);
    if (units > 0 && std::exchange(m_isAtStart, false) && m_text.front() == QChar::ByteOrderMark) {
        m_text.remove(0, 1);
        return HasUnit();
    }
    return units > 0;
}

bool SeparatedReader::IsAtLineEnd()
{
    return !HasUnit() || m_text[m_place] == u'\r' || m_text[m_place] == u'\n';
}

/// False where there is no end of a line.
bool SeparatedReader::SkipLineEnd()
{
    if (!HasUnit() || !IsAtLineEnd())
        return false;
    QString skipped;
    Take(skipped);
    if (skipped == u"\r" && HasUnit() && m_text[m_place] == u'\n')
        Take(skipped);
    return true;
}

/// Takes a unit, and counts the line that it may begin.
void SeparatedReader::Take(QString& text)
{
    const QChar unit = m_text[m_place++];
    const bool isAfterReturn = m_place > 1 && m_text[m_place - 2] == u'\r';
    m_line += unit == u'\r' || (unit == u'\n' && !isAfterReturn) ? 1 : 0;
    text += unit;
}

void SeparatedReader::ReadQuoted(SeparatedField& field)
{
    field.isQuoted = true;
    ++m_place;
    while (field.text.size() <= kMaxSeparatedField) {
        if (!HasUnit()) {
            m_line = field.line;
            m_fault = u"a quote is not closed"_s;
            return;
        }
        if (m_text[m_place] == kQuote) {
            ++m_place;
            if (!HasUnit() || m_text[m_place] != kQuote)
                return;
        }
        Take(field.text);
    }
}

void SeparatedReader::ReadRow()
{
    ReadField();
    while (m_fault.isEmpty() && HasUnit() && m_text[m_place] == m_separator) {
        ++m_place;
        ReadField();
    }
    if (m_fault.isEmpty() && !IsAtLineEnd())
        m_fault = u"a closing quote is followed by text"_s;
    if (m_fault.isEmpty())
        SkipLineEnd();
}

void SeparatedReader::ReadField()
{
    SeparatedField& field = m_fields.emplace_back();
    field.line = m_line;
    if (HasUnit() && m_text[m_place] == kQuote) {
        ReadQuoted(field);
    } else {
        while (!IsAtLineEnd() && m_text[m_place] != m_separator
            && field.text.size() <= kMaxSeparatedField)
            field.text += m_text[m_place++];
    }
    if (field.text.size() > kMaxSeparatedField) {
        m_line = field.line;
        m_fault = u"a field is longer than %1 characters"_s.arg(kMaxSeparatedField);
    }
}

} // namespace Quillory

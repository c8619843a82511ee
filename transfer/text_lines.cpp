// SPDX-License-Identifier: MIT
#include "transfer/text_lines.h"

#include "transfer/list_file.h"

#include <QStringView>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <limits>

namespace Quillory {

namespace {

constexpr qsizetype kReadSize = 65'536;
/// Characters of the buffer for 8-bit lines; it grows with the longest line.
constexpr size_t kLineCapacity = 1024;

qsizetype IndexOf(std::span<char> units, char16_t wanted)
{
    return QByteArrayView(units.data(), std::ssize(units)).indexOf(static_cast<char>(wanted));
}

qsizetype IndexOf(std::span<char16_t> units, char16_t wanted)
{
    return QStringView(units.data(), std::ssize(units)).indexOf(QChar(wanted));
}

/// Pipes have no size, and some files of the system's say that they are empty.
qint64 SizeOf(const QIODevice& source)
{
    const qint64 size = source.isSequential() ? 0 : source.size();
    return size > 0 ? size : std::numeric_limits<qint64>::max();
}

/// Where this computer cannot decode a page, the text is still to be read.
const CodePage& CodePageOrUsual(int number)
{
    constexpr int kUsualPage = 1252;
    const CodePage* page = CodePage::For(number);
    return page != nullptr ? *page : *CodePage::For(kUsualPage);
}

} // namespace

ByteWindow::ByteWindow(QIODevice& source)
    : m_source(source)
    , m_size(SizeOf(source))
    , m_bytes(kReadSize, Qt::Uninitialized)
{ }

std::span<char> ByteWindow::Bytes()
{
    return { m_bytes.data() + m_begin, static_cast<size_t>(m_end - m_begin) };
}

bool ByteWindow::Fill()
{
    const qsizetype size = m_end - m_begin;
    if (m_begin > 0)
        std::memmove(m_bytes.data(), m_bytes.data() + m_begin, static_cast<size_t>(size));
    m_begin = 0;
    m_end = size;
    const qint64 wanted = std::min<qint64>(m_bytes.size() - m_end, m_size - m_bytesRead);
    const qint64 got = m_source.read(m_bytes.data() + m_end, wanted);
    m_hasFailed = m_hasFailed || got < 0;
    if (got <= 0)
        return false;
    m_end += got;
    m_bytesRead += got;
    return true;
}

void ByteWindow::PadTo(qsizetype size)
{
    while ((m_end - m_begin) % size != 0)
        m_bytes.data()[m_end++] = '\0';
}

TextLineReader::TextLineReader(QIODevice& source, int codePage, size_t maxLine)
    : m_window(source)
    , m_codePage(CodePageOrUsual(codePage))
    , m_maxLine(maxLine)
    , m_buffer(kLineCapacity)
{
    ReadMark();
}

void TextLineReader::ReadMark()
{
    constexpr size_t kStartSize = 4;
    bool isMore = true;
    while (isMore && m_window.Bytes().size() < kStartSize)
        isMore = m_window.Fill();
    const auto start = m_window.Bytes();
    m_isWide = start.size() >= 2 && start[0] == '\xFF' && start[1] == '\xFE';
    if (!m_isWide)
        return;
    // A byte that is not there counts as zero.
    const auto unit = start.subspan(2).first(std::min<size_t>(start.size() - 2, 2));
    m_isBlank = std::all_of(unit.begin(), unit.end(), [](char byte) { return byte == '\0'; });
    m_window.Drop(2);
}

template <typename Unit> std::span<Unit> TextLineReader::UnitsAtHand()
{
    const auto bytes = m_window.Bytes();
    return { reinterpret_cast<Unit*>(bytes.data()), bytes.size() / sizeof(Unit) };
}

template <typename Unit> void TextLineReader::Hold(std::span<Unit> units)
{
    const size_t held = static_cast<size_t>(m_held.size()) / sizeof(Unit);
    const auto taken = units.first(std::min(units.size(), m_maxLine - held));
    m_isCut = m_isCut || taken.size() < units.size();
    m_held.append(reinterpret_cast<const char*>(taken.data()), std::ssize(std::as_bytes(taken)));
}

/// Holds the next line, an empty one too. False at the end of the text and on failure.
template <typename Unit> bool TextLineReader::HoldNext()
{
    m_held.resize(0);
    m_isCut = false;
    for (bool isMore = true;;) {
        auto units = UnitsAtHand<Unit>();
        if (m_isSkipping && !units.empty()) {
            m_window.Drop(sizeof(Unit));
            m_isSkipping = false;
            units = UnitsAtHand<Unit>();
        }
        const qsizetype end = IndexOf(units, kLineEnd);
        const auto part = end < 0 ? units : units.first(static_cast<size_t>(end));
        if (const qsizetype textEnd = IndexOf(part, u'\0'); textEnd >= 0) {
            m_hasOpenLine = textEnd > 0 || !m_held.isEmpty();
            return false;
        }
        Hold(part);
        m_isSkipping = m_isSkipping || end >= 0;
        m_window.Drop(std::ssize(std::as_bytes(units.first(part.size() + (end < 0 ? 0 : 1)))));
        m_linesRead += end >= 0 ? 1 : 0;
        m_hasOpenLine = end < 0 && !m_held.isEmpty();
        if (end >= 0 || !isMore)
            return end >= 0;
        isMore = m_window.Fill();
        if (!isMore)
            m_window.PadTo(sizeof(Unit));
    }
}

bool TextLineReader::Next()
{
    if (m_isBlank)
        return false;
    return m_isWide ? NextWide() : NextNarrow();
}

bool TextLineReader::NextWide()
{
    do {
        if (!HoldNext<char16_t>())
            return false;
    } while (m_held.isEmpty());
    const qsizetype length = m_held.size() / qsizetype { sizeof(char16_t) };
    m_held.append(qsizetype { sizeof(char16_t) }, '\0');
    m_line = reinterpret_cast<char16_t*>(m_held.data());
    qFromLittleEndian<quint16>(m_line, length, m_line);
    return true;
}

bool TextLineReader::NextNarrow()
{
    do {
        const bool wasCut = m_isCut;
        if (!HoldNext<char>())
            return false;
        const auto size = static_cast<size_t>(m_held.size());
        if (wasCut || size >= m_buffer.size())
            m_buffer.assign(std::max(size + 1, m_buffer.size()), u'\0');
        // As many bytes as the buffer has characters: its first half.
        std::memset(m_buffer.data(), 0, m_buffer.size());
    } while (m_held.isEmpty());
    m_codePage.Decode(m_held, m_buffer.data());
    m_line = m_buffer.data();
    return true;
}

} // namespace Quillory

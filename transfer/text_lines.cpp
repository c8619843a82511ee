#include "transfer/text_lines.h"

#include "transfer/list_file.h"

#include <QStringView>
#include <QtEndian>

#include <cstring>

namespace Quillory {

namespace {

constexpr qsizetype kReadSize = 131'072;
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
    if (m_end > m_bytes.size() / 2)
        m_bytes.resize(2 * m_bytes.size());
    const qint64 got = m_source.read(m_bytes.data() + m_end, m_bytes.size() - m_end);
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

TextLineReader::TextLineReader(QIODevice& source, int codePage)
    : m_window(source)
    , m_codePage(CodePageOrUsual(codePage))
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

template <typename Unit> std::optional<std::span<Unit>> TextLineReader::NextUnits()
{
    size_t searched = 0;
    bool isMore = true;
    for (;;) {
        auto units = UnitsAtHand<Unit>();
        if (m_isSkipping && !units.empty()) {
            m_window.Drop(sizeof(Unit));
            m_isSkipping = false;
            units = UnitsAtHand<Unit>();
        }
        const auto fresh = units.subspan(searched);
        const qsizetype end = IndexOf(fresh, kLineEnd);
        const auto part = end < 0 ? fresh : fresh.first(static_cast<size_t>(end));
        if (IndexOf(part, u'\0') >= 0)
            return std::nullopt;
        if (end >= 0) {
            const size_t length = searched + part.size();
            m_window.Drop(std::ssize(std::as_bytes(units.first(length + 1))));
            m_isSkipping = true;
            return units.first(length);
        }
        if (!isMore)
            return std::nullopt;
        searched = units.size();
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
    for (auto units = NextUnits<char16_t>(); units; units = NextUnits<char16_t>()) {
        if (units->empty())
            continue;
        qFromLittleEndian<quint16>(units->data(), std::ssize(*units), units->data());
        m_line = units->data();
        // In the place of the CR.
        m_line[units->size()] = u'\0';
        return true;
    }
    return false;
}

bool TextLineReader::NextNarrow()
{
    for (auto bytes = NextUnits<char>(); bytes; bytes = NextUnits<char>()) {
        if (bytes->size() >= m_buffer.size())
            m_buffer.assign(bytes->size() + 1, u'\0');
        // As many bytes as the buffer has characters: its first half.
        std::memset(m_buffer.data(), 0, m_buffer.size());
        if (bytes->empty())
            continue;
        m_codePage.Decode(QByteArrayView(bytes->data(), std::ssize(*bytes)), m_buffer.data());
        m_line = m_buffer.data();
        return true;
    }
    return false;
}

} // namespace Quillory

// SPDX-License-Identifier: MIT
#include "propdb/detail/page_tree.h"

#include "propdb/detail/stored_record.h"

#include <QtEndian>

#include <algorithm>

namespace Quillory {

namespace {

/// The kinds of pages, as their first byte tells.
constexpr char kIndexInner = 0x02;
constexpr char kTableInner = 0x05;
constexpr char kIndexLeaf = 0x0A;
constexpr char kTableLeaf = 0x0D;
/// The first page holds the file's header too.
constexpr qsizetype kFileHeader = 100;
/// No honest tree is deeper; each level has hundreds of pages to one of the level above.
constexpr int kMaxDepth = 20;
/// No honest record is larger.
constexpr quint64 kMaxRecord = quint64 { 128 } << 20;

/// How many bytes of a record lie on the page itself, the rest on a chain of further pages.
qsizetype BytesOnPage(quint64 size, bool isTable)
{
    constexpr quint64 kContent = kPageContent;
    constexpr quint64 kLeast = (kContent - 12) * 32 / 255 - 23;
    const quint64 most = isTable ? kContent - 35 : (kContent - 12) * 64 / 255 - 23;
    if (size <= most)
        return static_cast<qsizetype>(size);
    const quint64 wanted = kLeast + (size - kLeast) % (kContent - 4);
    return static_cast<qsizetype>(wanted <= most ? wanted : kLeast);
}

} // namespace

class PageTreeReader::PageBytesReader
{
public:
    PageBytesReader(const PageBytes& page, qsizetype place)
        : m_content(QByteArrayView(page.data(), kPageContent))
        , m_place(std::min(place, qsizetype { kPageContent }))
    { }

    [[nodiscard]] QByteArrayView Take(qsizetype size)
    {
        const auto taken = m_content.sliced(m_place, std::min(size, m_content.size() - m_place));
        m_place += taken.size();
        return taken;
    }
    [[nodiscard]] quint64 TakeNumber()
    {
        const StoredNumber number = ReadStoredNumber(m_content.sliced(m_place));
        m_place += number.size;
        return number.value;
    }
    [[nodiscard]] quint32 TakePageNumber()
    {
        const QByteArrayView bytes = Take(sizeof(quint32));
        return bytes.size() == sizeof(quint32) ? qFromBigEndian<quint32>(bytes.data()) : 0;
    }

private:
    QByteArrayView m_content;
    qsizetype m_place;
};

PageTreeReader::PageTreeReader(const PageFile& file, Doubt doubt)
    : m_file(file)
    , m_doubt(doubt)
    , m_isVisited(size_t { file.PageCount() } + 1)
{ }

qint64 PageTreeReader::Visit(quint32 root, const Visitor& visitor)
{
    m_lostPages = 0;
    VisitPage(root, visitor, 0);
    return m_lostPages;
}

void PageTreeReader::VisitStray(quint32 number, const Visitor& visitor)
{
    PageBytes page;
    if (!m_isVisited[number] && m_file.Read(number, page) && page.front() == kTableLeaf)
        VisitPage(number, visitor, 0);
}

bool PageTreeReader::PassOverFreePages()
{
    constexpr qsizetype kFirstFreePage = 32;
    PageBytes page;
    if (!m_file.Read(1, page))
        return false;
    quint32 next = PageBytesReader(page, kFirstFreePage).TakePageNumber();
    while (next != 0) {
        if (!ReadPage(next, page))
            return false;
        PageBytesReader numbers(page, 0);
        next = numbers.TakePageNumber();
        const quint32 count = numbers.TakePageNumber();
        for (quint32 i = 0; i < std::min<quint32>(count, kPageContent / sizeof(quint32)); ++i) {
            const quint32 free = numbers.TakePageNumber();
            if (free <= m_file.PageCount())
                m_isVisited[free] = true;
        }
    }
    return true;
}

bool PageTreeReader::ReadPage(quint32 number, PageBytes& page)
{
    if (number == 0 || number > m_file.PageCount() || m_isVisited[number]) {
        ++m_lostPages;
        return false;
    }
    const bool isSound = m_file.Read(number, page);
    m_lostPages += isSound ? 0 : 1;
    m_isVisited[number] = isSound || m_doubt == Doubt::Believe;
    return m_isVisited[number];
}

void PageTreeReader::VisitPage(quint32 number, const Visitor& visitor, int depth)
{
    PageBytes page;
    if (depth > kMaxDepth || !ReadPage(number, page))
        return;
    const qsizetype start = number == 1 ? kFileHeader : 0;
    const char kind = page[static_cast<size_t>(start)];
    const bool isInner = kind == kTableInner || kind == kIndexInner;
    const bool isTable = kind == kTableInner || kind == kTableLeaf;
    if (!isInner && kind != kTableLeaf && kind != kIndexLeaf) {
        ++m_lostPages;
        return;
    }
    constexpr qsizetype kCellCount = 3;
    constexpr qsizetype kLastChild = 8;
    const quint16 count = qFromBigEndian<quint16>(page.data() + start + kCellCount);
    PageBytesReader places(page, start + (isInner ? 12 : 8));
    for (int i = 0; i < count; ++i) {
        const QByteArrayView place = places.Take(sizeof(quint16));
        if (place.size() < qsizetype { sizeof(quint16) })
            break;
        PageBytesReader cell(page, qFromBigEndian<quint16>(place.data()));
        if (isInner)
            VisitPage(cell.TakePageNumber(), visitor, depth + 1);
        if (!isInner || !isTable)
            VisitCell(cell, isTable, visitor);
    }
    if (isInner)
        VisitPage(qFromBigEndian<quint32>(page.data() + start + kLastChild), visitor, depth + 1);
}

void PageTreeReader::VisitCell(PageBytesReader cell, bool isTable, const Visitor& visitor)
{
    const quint64 size = cell.TakeNumber();
    const auto rowId = isTable ? static_cast<qint64>(cell.TakeNumber()) : 0;
    if (const auto record = ReadRecord(cell, size, isTable))
        visitor(rowId, *record);
}

std::optional<QByteArray> PageTreeReader::ReadRecord(
    PageBytesReader& cell, quint64 size, bool isTable)
{
    if (size > kMaxRecord)
        return std::nullopt;
    const qsizetype onPage = BytesOnPage(size, isTable);
    QByteArray record = cell.Take(onPage).toByteArray();
    if (record.size() != onPage)
        return std::nullopt;
    const auto whole = static_cast<qsizetype>(size);
    quint32 next = record.size() < whole ? cell.TakePageNumber() : 0;
    while (record.size() < whole) {
        PageBytes page;
        if (!ReadPage(next, page))
            return std::nullopt;
        PageBytesReader bytes(page, 0);
        next = bytes.TakePageNumber();
        record += bytes.Take(whole - record.size());
    }
    return record;
}

} // namespace Quillory

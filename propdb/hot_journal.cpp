// SPDX-License-Identifier: MIT
#include "propdb/hot_journal.h"

#include "propdb/confined_vfs.h"

#include <QtEndian>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <optional>
#include <set>

namespace Quillory {

namespace {

constexpr std::array<quint8, 8> kJournalMagic { 0xd9, 0xd5, 0x05, 0xf9, 0x20, 0xa1, 0x63, 0xd7 };

/// Where the fields of a journal's header lie; it is followed by records up to the next header.
struct JournalLayout
{
    static constexpr int kHeaderSize = 28;
    static constexpr int kRecordCount = 8;
    static constexpr int kOriginalPages = 16;
    static constexpr int kSectorSize = 20;
    static constexpr int kPageSize = 24;
    /// A record is a page's number, the page, and a sum over it.
    static constexpr int kRecordSize = 4 + Quillory::kPageSize + 4;
};

/// Whole or not at all.
bool ReadAt(int descriptor, char* buffer, qsizetype size, qint64 offset)
{
    return pread(descriptor, buffer, static_cast<size_t>(size), offset) == size;
}

bool HasMagic(const char* header)
{
    return std::memcmp(header, kJournalMagic.data(), kJournalMagic.size()) == 0;
}

/// Whether both pages have a sector in common that no other file is likely to have.
bool HaveCommonSector(const char* a, const char* b)
{
    constexpr size_t kSectorSize = 512;
    for (size_t begin = 0; begin < kPageSize; begin += kSectorSize) {
        const bool isUniform = std::memcmp(a + begin, a + begin + 1, kSectorSize - 1) == 0;
        if (!isUniform && std::memcmp(a + begin, b + begin, kSectorSize) == 0)
            return true;
    }
    return false;
}

/// Reads a journal from its first page to its last, beside the file it belongs to.
class JournalReader
{
public:
    explicit JournalReader(const QByteArray& path, int fileDescriptor = -1)
        : m_descriptor(
            open((path + "-journal").constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK))
        , m_fileDescriptor(fileDescriptor)
    { }
    ~JournalReader()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    JournalReader(const JournalReader&) = delete;
    JournalReader& operator=(const JournalReader&) = delete;

    /// False if something in it is not as this program's journals are.
    bool ReadAll()
    {
        if (m_descriptor < 0 || !ReadHeader())
            return false;
        do {
            for (quint32 i = 0; i < m_recordCount; ++i) {
                if (!ReadRecord())
                    return false;
            }
            m_offset = (m_offset + m_sectorSize - 1) / m_sectorSize * m_sectorSize;
        } while (ReadHeader());
        return true;
    }

    /// How many pages the file gets by it; nothing if it is no journal that is played back.
    [[nodiscard]] std::optional<quint32> OriginalPageCount() const
    {
        std::array<char, JournalLayout::kHeaderSize> header {};
        if (!ReadAt(m_descriptor, header.data(), header.size(), 0) || !HasMagic(header.data()))
            return std::nullopt;
        return qFromBigEndian<quint32>(header.data() + JournalLayout::kOriginalPages);
    }
    [[nodiscard]] const QByteArray& FirstPage() const { return m_firstPage; }
    /// The file has a piece of what the journal restores, or nothing that outlasts it.
    [[nodiscard]] bool IsOfThisFile() const
    {
        return m_hasCommonPiece || m_pages.size() == m_originalPages || HasWholePage();
    }

private:
    int m_descriptor;
    int m_fileDescriptor;
    qint64 m_offset = 0;
    quint32 m_recordCount = 0;
    quint32 m_originalPages = 0;
    quint32 m_sectorSize = 0;
    QByteArray m_firstPage;
    std::set<quint32> m_pages;
    bool m_hasCommonPiece = false;

    bool ReadHeader()
    {
        std::array<char, JournalLayout::kHeaderSize> header {};
        if (!ReadAt(m_descriptor, header.data(), header.size(), m_offset)
            || !HasMagic(header.data()))
            return false;
        const auto field
            = [&](int place) { return qFromBigEndian<quint32>(header.data() + place); };
        m_recordCount = field(JournalLayout::kRecordCount);
        if (m_offset == 0) {
            m_originalPages = field(JournalLayout::kOriginalPages);
            m_sectorSize = field(JournalLayout::kSectorSize);
        }
        m_offset += m_sectorSize;
        return field(JournalLayout::kPageSize) == kPageSize && m_sectorSize >= header.size();
    }

    [[nodiscard]] bool HasWholePage() const
    {
        std::array<char, kPageSize> page {};
        for (quint32 number = 1; number <= m_originalPages; ++number) {
            const qint64 place = (qint64 { number } - 1) * kPageSize;
            if (!ReadAt(m_fileDescriptor, page.data(), kPageSize, place))
                return false;
            if (HasRightChecksum(page.data(), number))
                return true;
        }
        return false;
    }

    bool ReadRecord()
    {
        std::array<char, JournalLayout::kRecordSize> record {};
        if (!ReadAt(m_descriptor, record.data(), record.size(), m_offset))
            return false;
        m_offset += JournalLayout::kRecordSize;
        const auto number = qFromBigEndian<quint32>(record.data());
        const char* page = record.data() + sizeof(number);
        if (!HasRightChecksum(page, number))
            return false;
        m_pages.insert(number);
        std::array<char, kPageSize> current {};
        const qint64 place = (qint64 { number } - 1) * kPageSize;
        if (ReadAt(m_fileDescriptor, current.data(), kPageSize, place)
            && HaveCommonSector(current.data(), page))
            m_hasCommonPiece = true;
        if (number == 1)
            m_firstPage = QByteArray(page, kPageSize);
        return true;
    }
};

} // namespace

bool HasPlausibleJournal(const QByteArray& path, qint64 fileSize)
{
    const JournalReader journal(path);
    const auto pages = journal.OriginalPageCount();
    return !pages || (*pages > 0 && (qint64 { *pages } - 1) * kPageSize < fileSize);
}

QByteArray FirstPageFromJournal(const QByteArray& path, int descriptor)
{
    JournalReader journal(path, descriptor);
    return journal.ReadAll() && journal.IsOfThisFile() ? journal.FirstPage() : QByteArray();
}

} // namespace Quillory

// SPDX-License-Identifier: MIT
#include "transfer/import_runs.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

namespace Quillory {

namespace {

/// Characters that are read or written in one go.
constexpr size_t kBufferUnits = 16'384;

qint64 BytesOf(size_t units)
{
    return static_cast<qint64>(units) * qint64 { sizeof(char16_t) };
}

/// Stands before the text of each line of a run.
struct LineHead
{
    /// Characters of the line with its NUL, and among them those of the name.
    quint32 length = 0;
    quint32 nameBegin = 0;
    quint32 nameLength = 0;
};
constexpr size_t kHeadUnits = sizeof(LineHead) / sizeof(char16_t);
using HeadUnits = std::array<char16_t, kHeadUnits>;

} // namespace

/// The lines of one run, one after another. Holds some kilobytes, however long they are.
class ImportRuns::Reader
{
public:
    Reader(QFile& file, const Run& run)
        : m_file(file)
        , m_end(run.end)
        , m_next(run.begin)
    { }

    /// Goes to the next line; false at the end and on failure.
    [[nodiscard]] bool Next()
    {
        m_whole = std::vector<char16_t>();
        const char16_t* const head = m_next == m_end ? nullptr : Hold(m_next, kHeadUnits);
        if (head == nullptr)
            return false;
        HeadUnits units {};
        std::copy_n(head, units.size(), units.begin());
        m_head = std::bit_cast<LineHead>(units);
        m_line = m_next + BytesOf(kHeadUnits);
        m_next = m_line + BytesOf(m_head.length);
        // Of a line that is too long to be held, the name or its beginning is.
        m_heldBegin = IsHeld() ? 0 : m_head.nameBegin;
        m_held = Hold(m_line + BytesOf(m_heldBegin), IsHeld() ? m_head.length : HeldNameLength());
        return m_held != nullptr;
    }
    /// The fields of the current line, for as long as it is that; none on failure.
    [[nodiscard]] std::span<const QStringView> Fields()
    {
        m_fields.clear();
        if (IsHeld() || Read(m_line, m_head.length, m_whole))
            ImportBatch::CutLine(IsHeld() ? m_held : m_whole.data(), m_fields);
        return m_fields;
    }
    [[nodiscard]] bool HasFailed() const { return m_hasFailed; }
    [[nodiscard]] bool StandsBefore(Reader& other)
    {
        // A line without a name comes last, as its row does.
        if ((m_head.nameLength == 0) != (other.m_head.nameLength == 0))
            return other.m_head.nameLength == 0;
        int order = HeldName().compare(other.HeldName());
        if (order == 0
            && (m_head.nameLength > kBufferUnits || other.m_head.nameLength > kBufferUnits))
            order = WholeName().compare(other.WholeName());
        return order != 0 ? order < 0 : m_end < other.m_end;
    }

private:
    QFile& m_file;
    qint64 m_end;
    qint64 m_next;
    LineHead m_head;
    /// Where the current line's text stands in the file, and how much of it precedes m_held.
    qint64 m_line = 0;
    size_t m_heldBegin = 0;
    const char16_t* m_held = nullptr;
    std::vector<char16_t> m_buffer;
    qint64 m_bufferBegin = 0;
    std::vector<char16_t> m_whole;
    std::vector<QStringView> m_fields;
    bool m_hasFailed = false;

    [[nodiscard]] bool IsHeld() const { return m_head.length <= kBufferUnits; }
    [[nodiscard]] size_t HeldNameLength() const
    {
        return std::min<size_t>(m_head.nameLength, kBufferUnits);
    }
    [[nodiscard]] QStringView HeldName() const
    {
        return { m_held + (m_head.nameBegin - m_heldBegin),
            static_cast<qsizetype>(HeldNameLength()) };
    }
    [[nodiscard]] QString WholeName()
    {
        std::vector<char16_t> units;
        if (!Read(m_line + BytesOf(m_head.nameBegin), m_head.nameLength, units))
            return {};
        return QStringView(units.data(), std::ssize(units)).toString();
    }

    /// So many characters, at most kBufferUnits, from a place of the file on; null on failure.
    const char16_t* Hold(qint64 place, size_t count)
    {
        const qint64 bufferEnd = m_bufferBegin + BytesOf(m_buffer.size());
        if (place < m_bufferBegin || place + BytesOf(count) > bufferEnd || m_buffer.empty()) {
            const qint64 size = std::min(BytesOf(kBufferUnits), m_end - place);
            m_bufferBegin = place;
            if (!Read(place, static_cast<size_t>(size) / sizeof(char16_t), m_buffer))
                return nullptr;
        }
        return m_buffer.data() + static_cast<size_t>(place - m_bufferBegin) / sizeof(char16_t);
    }
    [[nodiscard]] bool Read(qint64 place, size_t count, std::vector<char16_t>& units)
    {
        units.resize(count);
        const qint64 size = BytesOf(count);
        m_hasFailed = m_hasFailed || !m_file.seek(place)
            || m_file.read(reinterpret_cast<char*>(units.data()), size) != size;
        return !m_hasFailed;
    }
};

bool ImportRuns::PutAside(ImportBatch& batch)
{
    if (m_file == nullptr) {
        m_file = std::make_unique<QTemporaryFile>();
        if (!m_file->open())
            return false;
    }
    const qint64 begin = m_runs.empty() ? 0 : m_runs.back().end;
    if (!m_file->seek(begin) || !Write(batch))
        return false;
    m_runs.push_back({ begin, m_file->pos() });
    batch.Clear();
    return true;
}

bool ImportRuns::Write(ImportBatch& batch)
{
    std::vector<char16_t> units;
    bool isWritten = true;
    const auto flush = [&] {
        const qint64 size = BytesOf(units.size());
        isWritten = m_file->write(reinterpret_cast<const char*>(units.data()), size) == size;
        units.clear();
        return isWritten;
    };
    batch.VisitLines([&](const ImportBatch::KeptLine& line) {
        const auto head = std::bit_cast<HeadUnits>(
            LineHead { static_cast<quint32>(line.text.size()), line.nameBegin, line.nameLength });
        units.insert(units.end(), head.begin(), head.end());
        units.insert(units.end(), line.text.utf16(), line.text.utf16() + line.text.size());
        return units.size() < kBufferUnits || flush();
    });
    return isWritten && flush() && m_file->flush();
}

bool ImportRuns::Drain(const ImportBatch::Visitor& visit)
{
    std::vector<std::unique_ptr<Reader>> readers;
    bool isWhole = true;
    // A heap with the reader of the next line in front.
    const auto isLater = [](const auto& a, const auto& b) { return b->StandsBefore(*a); };
    const auto enter = [&](std::unique_ptr<Reader> reader) {
        const bool isThere = reader->Next();
        isWhole = isWhole && !reader->HasFailed();
        if (!isThere)
            return;
        readers.push_back(std::move(reader));
        std::ranges::push_heap(readers, isLater);
    };
    for (const Run& run : m_runs)
        enter(std::make_unique<Reader>(*m_file, run));
    while (isWhole && !readers.empty()) {
        std::ranges::pop_heap(readers, isLater);
        auto reader = std::move(readers.back());
        readers.pop_back();
        const auto fields = reader->Fields();
        isWhole = !reader->HasFailed();
        if (!isWhole || !visit(fields))
            break;
        enter(std::move(reader));
    }
    m_runs.clear();
    return isWhole;
}

} // namespace Quillory

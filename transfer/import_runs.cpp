#include "transfer/import_runs.h"

#include "transfer/list_file.h"

#include <algorithm>

namespace Quillory {

namespace {

/// Characters that are read or written in one go.
constexpr size_t kBufferUnits = 16'384;

qint64 BytesOf(size_t units)
{
    return static_cast<qint64>(units) * qint64 { sizeof(char16_t) };
}

} // namespace

/// The lines of one run, one after another.
class ImportRuns::Reader
{
public:
    Reader(QFile& file, const Run& run, size_t nameField)
        : m_file(file)
        , m_run(run)
        , m_nameField(nameField)
    { }

    /// Goes to the next line; false at the end and on failure.
    [[nodiscard]] bool Next()
    {
        size_t searched = 0;
        for (;;) {
            const auto from = m_units.begin() + static_cast<std::ptrdiff_t>(m_place + searched);
            const auto end = std::find(from, m_units.end(), u'\0');
            if (end != m_units.end()) {
                ImportBatch::CutLine(m_units.data() + m_place, m_fields);
                m_place = static_cast<size_t>(end - m_units.begin()) + 1;
                return true;
            }
            searched = m_units.size() - m_place;
            if (!Fill())
                return false;
        }
    }
    [[nodiscard]] std::span<const QStringView> Fields() const { return m_fields; }
    [[nodiscard]] bool HasFailed() const { return m_hasFailed; }
    /// Null where the line has none.
    [[nodiscard]] QStringView Name() const
    {
        return m_nameField < m_fields.size() ? m_fields[m_nameField] : QStringView();
    }
    [[nodiscard]] bool StandsBefore(const Reader& other) const
    {
        const QStringView a = Name();
        const QStringView b = other.Name();
        // A line without a name comes last, as its row does.
        const int order
            = a.isNull() || b.isNull() ? int { a.isNull() } - int { b.isNull() } : a.compare(b);
        return order != 0 ? order < 0 : m_run.end < other.m_run.end;
    }

private:
    QFile& m_file;
    Run m_run;
    size_t m_nameField;
    std::vector<char16_t> m_units;
    size_t m_place = 0;
    std::vector<QStringView> m_fields;
    bool m_hasFailed = false;

    bool Fill()
    {
        m_units.erase(m_units.begin(), m_units.begin() + static_cast<std::ptrdiff_t>(m_place));
        m_place = 0;
        const size_t kept = m_units.size();
        const qint64 wanted = std::min(BytesOf(kBufferUnits), m_run.end - m_run.begin);
        if (wanted == 0)
            return false;
        m_units.resize(kept + static_cast<size_t>(wanted) / sizeof(char16_t));
        m_hasFailed = !m_file.seek(m_run.begin)
            || m_file.read(reinterpret_cast<char*>(m_units.data() + kept), wanted) != wanted;
        m_run.begin += wanted;
        return !m_hasFailed;
    }
};

ImportRuns::ImportRuns(std::span<const PropertyId> columns)
    : m_nameField(ImportBatch::NameFieldOf(columns))
{ }

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
    batch.Visit([&](std::span<const QStringView> fields) {
        for (size_t i = 0; i < fields.size(); ++i) {
            units.insert(units.end(), fields[i].utf16(), fields[i].utf16() + fields[i].size());
            units.push_back(i + 1 < fields.size() ? kFieldSeparator : u'\0');
        }
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
        enter(std::make_unique<Reader>(*m_file, run, m_nameField));
    while (isWhole && !readers.empty()) {
        std::ranges::pop_heap(readers, isLater);
        auto reader = std::move(readers.back());
        readers.pop_back();
        if (!visit(reader->Fields()))
            break;
        enter(std::move(reader));
    }
    m_runs.clear();
    return isWhole;
}

} // namespace Quillory

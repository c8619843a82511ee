// SPDX-License-Identifier: MIT
#include "propdb/detail/statement.h"

#include "propdb/detail/sqlite_error.h"

#include <QtEndian>

#include <sqlite3.h>

#include <span>
#include <utility>

namespace Quillory {

namespace {

/// The columns of the current row from `first` on.
class RowRecord final : public ScannedRecord
{
public:
    RowRecord(sqlite3_stmt* statement, int first)
        : m_statement(statement)
        , m_first(first)
    { }

    [[nodiscard]] ObjectId Oid() const override
    {
        return static_cast<ObjectId>(sqlite3_column_int64(m_statement, 0));
    }
    /// A column like any other is read as such.
    [[nodiscard]] Origin StoredOrigin() const override { return kNoOrigin; }
    [[nodiscard]] bool IsMissing(size_t place) const override
    {
        return sqlite3_column_type(m_statement, ColumnOf(place)) == SQLITE_NULL;
    }
    [[nodiscard]] qint64 Integer(size_t place) const override
    {
        return sqlite3_column_int64(m_statement, ColumnOf(place));
    }
    [[nodiscard]] double Number(size_t place) const override
    {
        return sqlite3_column_double(m_statement, ColumnOf(place));
    }
    [[nodiscard]] QByteArrayView Bytes(size_t place) const override
    {
        // In this order: the size is that of the bytes that were asked for last.
        const int column = ColumnOf(place);
        const auto* bytes = static_cast<const char*>(sqlite3_column_blob(m_statement, column));
        return { bytes, bytes == nullptr ? 0 : sqlite3_column_bytes16(m_statement, column) };
    }

private:
    sqlite3_stmt* m_statement;
    int m_first;

    [[nodiscard]] int ColumnOf(size_t place) const { return m_first + static_cast<int>(place); }
};

} // namespace

Statement::~Statement()
{
    sqlite3_finalize(m_statement);
}

Statement::Statement(Statement&& other) noexcept
    : m_statement(std::exchange(other.m_statement, nullptr))
    , m_classes(std::move(other.m_classes))
    , m_texts(std::move(other.m_texts))
    , m_bindCode(other.m_bindCode)
    , m_error(other.m_error)
{ }

Statement& Statement::operator=(Statement&& other) noexcept
{
    std::swap(m_statement, other.m_statement);
    m_classes = std::move(other.m_classes);
    std::swap(m_texts, other.m_texts);
    m_bindCode = other.m_bindCode;
    m_error = other.m_error;
    return *this;
}

Result<Statement> Statement::Prepare(sqlite3* connection, const QString& sql, bool isKept)
{
    Statement statement;
    const QByteArray utf8 = sql.toUtf8();
    const unsigned flags = isKept ? SQLITE_PREPARE_PERSISTENT : 0;
    const int code = sqlite3_prepare_v3(connection, utf8.constData(),
        static_cast<int>(utf8.size()) + 1, flags, &statement.m_statement, nullptr);
    if (code != SQLITE_OK)
        return ErrorFromSqlite(sqlite3_extended_errcode(connection), connection);
    // An identifier that stands alone is its row's, which cannot be of another class.
    int columns = sqlite3_column_count(statement.m_statement);
    if (columns == 1 && qstrcmp(sqlite3_column_name(statement.m_statement, 0), "oid") == 0)
        columns = 0;
    for (int i = 0; i < columns; ++i)
        statement.m_classes.push_back(
            ClassesOfDeclaration(sqlite3_column_decltype(statement.m_statement, i)));
    return statement;
}

void Statement::NoteBinding(int code)
{
    if (m_bindCode == SQLITE_OK)
        m_bindCode = code;
}

void Statement::Bind(int parameter, qint64 value)
{
    NoteBinding(sqlite3_bind_int64(m_statement, parameter, value));
}

void Statement::Bind(int parameter, QStringView text)
{
    const qsizetype nul = text.indexOf(QChar(u'\0'));
    if (nul >= 0)
        text.truncate(nul);
    // Files hold text big-endian, so that comparing bytes compares units.
    constexpr QChar kMark = u'\uFEFF';
    const auto place = static_cast<size_t>(parameter);
    if (place >= m_texts.size())
        m_texts.resize(place + 1);
    std::vector<char16_t>& units = m_texts[place];
    units.resize(1 + static_cast<size_t>(text.size()));
    units[0] = qToBigEndian(kMark.unicode());
    qToBigEndian<quint16>(text.utf16(), text.size(), units.data() + 1);
    // SQLite takes a byte-order mark at the front for its own and leaves it out or, where the mark
    // is turned round, turns the whole text. One more in front of it keeps such a text as it is.
    constexpr QChar kTurnedMark = u'\uFFFE';
    const bool needsMark = text.startsWith(kMark) || text.startsWith(kTurnedMark);
    const auto bound = std::span(units).subspan(needsMark ? 0 : 1);
    NoteBinding(
        sqlite3_bind_text64(m_statement, parameter, reinterpret_cast<const char*>(bound.data()),
            bound.size_bytes(), SQLITE_STATIC, SQLITE_UTF16BE));
}

void Statement::BindNull(int parameter)
{
    NoteBinding(sqlite3_bind_null(m_statement, parameter));
}

bool Statement::Bind(int parameter, const PropertyValue& value)
{
    const auto bindInteger = [&](auto typed) {
        Bind(parameter, static_cast<qint64>(typed));
        return true;
    };
    switch (PropertyType(value.id)) {
    case CEVT_I2:
        if (const auto* number = std::get_if<qint16>(&value.value))
            return bindInteger(*number);
        return false;
    case CEVT_I4:
        if (const auto* number = std::get_if<qint32>(&value.value))
            return bindInteger(*number);
        return false;
    case CEVT_UI4:
        if (const auto* number = std::get_if<quint32>(&value.value))
            return bindInteger(*number);
        return false;
    case CEVT_BOOL:
        if (const auto* flag = std::get_if<bool>(&value.value))
            return bindInteger(*flag);
        return false;
    case CEVT_FILETIME:
        if (const auto* time = std::get_if<FileTime>(&value.value))
            return bindInteger(time->ticks);
        return false;
    case CEVT_R8:
        if (const auto* number = std::get_if<double>(&value.value)) {
            NoteBinding(sqlite3_bind_double(m_statement, parameter, *number));
            return true;
        }
        return false;
    case CEVT_LPWSTR:
        if (const auto* text = std::get_if<QString>(&value.value)) {
            Bind(parameter, QStringView(*text));
            return true;
        }
        return false;
    case CEVT_BLOB:
        if (const auto* bytes = std::get_if<QByteArray>(&value.value)) {
            NoteBinding(sqlite3_bind_blob64(m_statement, parameter, bytes->constData(),
                static_cast<sqlite3_uint64>(bytes->size()), SQLITE_TRANSIENT));
            return true;
        }
        return false;
    default:
        return false;
    }
}

bool Statement::Next()
{
    const int code = m_bindCode == SQLITE_OK ? sqlite3_step(m_statement)
                                             : std::exchange(m_bindCode, SQLITE_OK);
    if (code == SQLITE_ROW && HoldsWhatIsDeclared())
        return true;
    Finish(code == SQLITE_ROW ? SQLITE_CORRUPT : code);
    return false;
}

bool Statement::HoldsWhatIsDeclared() const
{
    for (int column = 0; const ValueClasses classes : m_classes) {
        if (!IsAmong(sqlite3_column_type(m_statement, column++), classes))
            return false;
    }
    return true;
}

void Statement::Finish(int code)
{
    m_error = ErrorFromSqlite(code, sqlite3_db_handle(m_statement));
    sqlite3_reset(m_statement);
}

Result<bool> Statement::Step()
{
    if (Next())
        return true;
    if (m_error != ErrorNumber::None)
        return m_error;
    return false;
}

Result<void> Statement::Run()
{
    const Result<bool> step = Step();
    Reset();
    return step.Error();
}

void Statement::Reset()
{
    sqlite3_reset(m_statement);
}

qint64 Statement::Int64(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

QString Statement::Text(int column) const
{
    PropertyValue text { MakePropertyId(0, CEVT_LPWSTR), 0, QString() };
    ReadProperty(column, text);
    return text.IsMissing() ? QString() : std::get<QString>(text.value);
}

QByteArray Statement::Utf8(int column) const
{
    return { reinterpret_cast<const char*>(sqlite3_column_text(m_statement, column)) };
}

void Statement::ReadProperty(int column, PropertyValue& value) const
{
    RowRecord(m_statement, column).Read(0, value);
}

Result<void> Execute(sqlite3* connection, const char* sql)
{
    if (sqlite3_exec(connection, sql, nullptr, nullptr, nullptr) == SQLITE_OK)
        return {};
    return ErrorFromSqlite(sqlite3_extended_errcode(connection), connection);
}

} // namespace Quillory

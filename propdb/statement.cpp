#include "propdb/statement.h"

#include "propdb/sqlite_error.h"

#include <QVarLengthArray>
#include <QtEndian>

#include <sqlite3.h>

#include <utility>

namespace Quillory {

namespace {

void MarkMissing(PropertyValue& value)
{
    value.flags = CEDB_PROPNOTFOUND;
    value.value = std::monostate();
}

} // namespace

Statement::~Statement()
{
    sqlite3_finalize(m_statement);
}

Statement::Statement(Statement&& other) noexcept
    : m_statement(std::exchange(other.m_statement, nullptr))
    , m_bindCode(other.m_bindCode)
    , m_error(other.m_error)
{ }

Statement& Statement::operator=(Statement&& other) noexcept
{
    std::swap(m_statement, other.m_statement);
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
    QVarLengthArray<char16_t, 256> units(text.size());
    qToBigEndian<quint16>(text.utf16(), text.size(), units.data());
    NoteBinding(sqlite3_bind_text64(m_statement, parameter,
        reinterpret_cast<const char*>(units.constData()),
        static_cast<sqlite3_uint64>(text.size()) * sizeof(char16_t), SQLITE_TRANSIENT,
        SQLITE_UTF16BE));
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
    sqlite3* connection = sqlite3_db_handle(m_statement);
    if (m_bindCode != SQLITE_OK) {
        Finish(ErrorFromSqlite(std::exchange(m_bindCode, SQLITE_OK), connection));
        return false;
    }
    const int code = sqlite3_step(m_statement);
    if (code == SQLITE_ROW)
        return true;
    Finish(code == SQLITE_DONE ? ErrorNumber::None
                               : ErrorFromSqlite(sqlite3_extended_errcode(connection), connection));
    return false;
}

void Statement::Finish(ErrorNumber error)
{
    m_error = error;
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

bool Statement::IsNull(int column) const
{
    return sqlite3_column_type(m_statement, column) == SQLITE_NULL;
}

qint64 Statement::Int64(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

QString Statement::Text(int column) const
{
    QString text;
    ReadText(column, text);
    return text;
}

QByteArray Statement::Utf8(int column) const
{
    return { reinterpret_cast<const char*>(sqlite3_column_text(m_statement, column)) };
}

void Statement::ReadText(int column, QString& text) const
{
    const void* units = sqlite3_column_blob(m_statement, column);
    const auto size = static_cast<qsizetype>(sqlite3_column_bytes16(m_statement, column))
        / static_cast<qsizetype>(sizeof(char16_t));
    text.resize(size);
    if (size > 0)
        qFromBigEndian<quint16>(units, size, text.data());
}

void Statement::ReadProperty(int column, PropertyValue& value) const
{
    value.flags = 0;
    switch (PropertyType(value.id)) {
    case CEVT_I2:
        return ReadNumber(column, value, static_cast<qint16>(Int64(column)));
    case CEVT_I4:
        return ReadNumber(column, value, static_cast<qint32>(Int64(column)));
    case CEVT_UI4:
        return ReadNumber(column, value, static_cast<quint32>(Int64(column)));
    case CEVT_BOOL:
        return ReadNumber(column, value, Int64(column) != 0);
    case CEVT_FILETIME:
        return ReadNumber(column, value, FileTime { static_cast<quint64>(Int64(column)) });
    case CEVT_R8:
        return ReadNumber(column, value, sqlite3_column_double(m_statement, column));
    default:
        break;
    }
    if (IsNull(column))
        return MarkMissing(value);
    if (PropertyType(value.id) == CEVT_BLOB) {
        value.value = QByteArray(static_cast<const char*>(sqlite3_column_blob(m_statement, column)),
            sqlite3_column_bytes(m_statement, column));
        return;
    }
    if (!std::holds_alternative<QString>(value.value))
        value.value = QString();
    ReadText(column, std::get<QString>(value.value));
}

template <typename Number>
void Statement::ReadNumber(int column, PropertyValue& value, Number number) const
{
    // NULL reads as zero, so that only a zero needs a second look.
    if (number == Number {} && IsNull(column))
        return MarkMissing(value);
    if (auto* current = std::get_if<Number>(&value.value))
        *current = number;
    else
        value.value = number;
}

Result<void> Execute(sqlite3* connection, const char* sql)
{
    if (sqlite3_exec(connection, sql, nullptr, nullptr, nullptr) == SQLITE_OK)
        return {};
    return ErrorFromSqlite(sqlite3_extended_errcode(connection), connection);
}

} // namespace Quillory

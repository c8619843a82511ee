// SPDX-License-Identifier: MIT
#include "propdb/detail/record_visit.h"

#include "propdb/detail/schema.h"
#include "propdb/detail/sqlite_error.h"

#include <sqlite3.h>

#include <utility>

namespace Quillory {

namespace {

QByteArrayView ArgumentBytes(sqlite3_value* value)
{
    // In this order: the size is that of the bytes that were asked for last.
    const auto* bytes = static_cast<const char*>(sqlite3_value_blob(value));
    return { bytes, bytes == nullptr ? 0 : sqlite3_value_bytes16(value) };
}

/// The arguments of the function: the identifier, the origin, then the properties.
class ArgumentRecord final : public ScannedRecord
{
public:
    explicit ArgumentRecord(sqlite3_value** values)
        : m_oid(values[0])
        , m_origin(values[1])
        , m_properties(values + kOwnColumns)
    { }

    [[nodiscard]] ObjectId Oid() const override
    {
        return static_cast<ObjectId>(sqlite3_value_int64(m_oid));
    }
    [[nodiscard]] Origin StoredOrigin() const override
    {
        return static_cast<Origin>(sqlite3_value_int64(m_origin));
    }
    [[nodiscard]] bool IsMissing(size_t place) const override
    {
        return sqlite3_value_type(m_properties[place]) == SQLITE_NULL;
    }
    [[nodiscard]] qint64 Integer(size_t place) const override
    {
        return sqlite3_value_int64(m_properties[place]);
    }
    [[nodiscard]] double Number(size_t place) const override
    {
        return sqlite3_value_double(m_properties[place]);
    }
    [[nodiscard]] QByteArrayView Bytes(size_t place) const override
    {
        return ArgumentBytes(m_properties[place]);
    }

private:
    sqlite3_value* m_oid;
    sqlite3_value* m_origin;
    sqlite3_value** m_properties;
};

void Finish(sqlite3_context* context)
{
    sqlite3_result_null(context);
}

} // namespace

Result<void> RecordVisit::Register(sqlite3* connection)
{
    constexpr int kAnyCount = -1;
    const int code = sqlite3_create_function_v2(connection, kFunctionName, kAnyCount,
        SQLITE_UTF16BE | SQLITE_DIRECTONLY, this, nullptr, &RecordVisit::Visit, &Finish, nullptr);
    return code == SQLITE_OK ? ErrorNumber::None
                             : ErrorFromSqlite(sqlite3_extended_errcode(connection), connection);
}

void RecordVisit::Visit(sqlite3_context* context, int /*count*/, sqlite3_value** values)
{
    auto* visit = static_cast<RecordVisit*>(sqlite3_user_data(context));
    if (!visit->IsSound(context, values + kOwnColumns))
        sqlite3_result_error_code(context, SQLITE_CORRUPT);
    else if (!visit->Visit(ArgumentRecord(values)))
        sqlite3_result_error_code(context, SQLITE_ABORT);
}

bool RecordVisit::IsSound(sqlite3_context* context, sqlite3_value** properties) const
{
    qint64 bytes = 0;
    for (const ValueClasses declared : m_call.classes) {
        sqlite3_value* property = *properties++;
        const int valueClass = sqlite3_value_type(property);
        if (!IsAmong(valueClass, declared))
            return false;
        if (valueClass == SQLITE_TEXT || valueClass == SQLITE_BLOB)
            bytes += ArgumentBytes(property).size();
    }
    return m_call.limit->Add(sqlite3_context_db_handle(context), bytes);
}

bool RecordVisit::Visit(const ScannedRecord& record)
{
    // An exception must not pass through SQLite.
    try {
        m_call.isStopped = !(*m_call.visitor)(record);
    } catch (...) {
        m_call.thrown = std::current_exception();
        m_call.isStopped = true;
    }
    return !m_call.isStopped;
}

Result<bool> RecordVisit::Run(Statement& statement, std::span<const ValueClasses> classes,
    ReadingLimit& limit, const Database::RecordVisitor& visitor)
{
    Call outer = std::exchange(m_call, { classes, &limit, &visitor, false, {} });
    const auto done = statement.Run();
    const Call call = std::exchange(m_call, std::move(outer));
    if (call.thrown)
        std::rethrow_exception(call.thrown);
    if (!done && !call.isStopped)
        return done.Error();
    return !call.isStopped;
}

} // namespace Quillory

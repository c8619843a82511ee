// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/detail/value_class.h"
#include "propdb/property_value.h"
#include "propdb/result.h"
#include "propdb/scanned_record.h"

#include <QStringView>

#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace Quillory {

/// A prepared statement: prepared by Prepare, finalised by the destructor. Parameters count from 1,
/// columns from 0. Text goes in and out as 16-bit units, lone surrogates included. A value that
/// there was no memory to bind makes the next run fail.
class Statement
{
public:
    Statement() = default;
    ~Statement();
    Statement(Statement&& other) noexcept;
    Statement& operator=(Statement&& other) noexcept;
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    /// Statements that live long are told so by `isKept`.
    [[nodiscard]] static Result<Statement> Prepare(
        sqlite3* connection, const QString& sql, bool isKept = false);

    void Bind(int parameter, qint64 value);
    void Bind(int parameter, ObjectId oid) { Bind(parameter, static_cast<qint64>(oid)); }
    /// Up to the first NUL.
    void Bind(int parameter, QStringView text);
    void BindNull(int parameter);
    /// False if the value is not of the type that its identifier names.
    [[nodiscard]] bool Bind(int parameter, const PropertyValue& value);

    /// True while there is a row. At the end and on failure it resets itself and gives false;
    /// Error() tells the two apart. A row with a value of another class than its column is declared
    /// to hold is damage: FileCorrupt.
    [[nodiscard]] bool Next();
    /// Why Next() found no row; ErrorNumber::None at the end of the rows.
    [[nodiscard]] ErrorNumber Error() const { return m_error; }
    /// Next() and Error() in one, for a statement of at most one row.
    [[nodiscard]] Result<bool> Step();
    /// Runs a statement that gives no rows.
    [[nodiscard]] Result<void> Run();
    void Reset();

    [[nodiscard]] qint64 Int64(int column) const;
    [[nodiscard]] ObjectId Oid(int column) const { return static_cast<ObjectId>(Int64(column)); }
    [[nodiscard]] QString Text(int column) const;
    /// The text of a column whatever its encoding: settings answer before the file's is known.
    [[nodiscard]] QByteArray Utf8(int column) const;
    /// Reads a column into `value`, as ScannedRecord::Read does.
    void ReadProperty(int column, PropertyValue& value) const;

    explicit operator bool() const { return m_statement != nullptr; }

private:
    sqlite3_stmt* m_statement = nullptr;
    /// Of each column.
    std::vector<ValueClasses> m_classes;
    /// The texts that are bound, at the numbers of their parameters: copies of SQLite's own would
    /// be asked of the heap for each row.
    std::vector<std::vector<char16_t>> m_texts;
    /// The code of a value that could not be bound; the statement must not run without it.
    int m_bindCode = 0;
    ErrorNumber m_error = ErrorNumber::None;

    void NoteBinding(int code);
    [[nodiscard]] bool HoldsWhatIsDeclared() const;
    void Finish(int code);
};

/// Runs SQL without parameters and without rows, one statement or several.
[[nodiscard]] Result<void> Execute(sqlite3* connection, const char* sql);

} // namespace Quillory

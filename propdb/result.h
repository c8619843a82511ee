// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/error_number.h"

#include <utility>
#include <variant>

namespace Quillory {

/// Ends the program, which took no failure for one.
[[noreturn]] void EndForWantOfFailure();

/// A value, or the number that says why there is none.
template <typename T> class [[nodiscard]] Result
{
public:
    Result(T value) // NOLINT(google-explicit-constructor): a function returns its value as it is
        : m_state(std::move(value))
    { }
    /// ErrorNumber::None, which is neither a failure nor a value, ends the program.
    Result(ErrorNumber error) // NOLINT(google-explicit-constructor): or its failure
        : m_state(error)
    {
        if (error == ErrorNumber::None)
            EndForWantOfFailure();
    }

    [[nodiscard]] bool IsOk() const { return std::holds_alternative<T>(m_state); }
    explicit operator bool() const { return IsOk(); }

    /// The value; only where IsOk().
    [[nodiscard]] T& Value() { return std::get<T>(m_state); }
    [[nodiscard]] const T& Value() const { return std::get<T>(m_state); }
    T& operator*() { return Value(); }
    const T& operator*() const { return Value(); }
    T* operator->() { return &Value(); }
    const T* operator->() const { return &Value(); }

    /// The reason of the failure; ErrorNumber::None where IsOk().
    [[nodiscard]] ErrorNumber Error() const
    {
        return IsOk() ? ErrorNumber::None : std::get<ErrorNumber>(m_state);
    }

private:
    std::variant<T, ErrorNumber> m_state;
};

/// The outcome of an operation that gives nothing back: done, or why not.
template <> class [[nodiscard]] Result<void>
{
public:
    Result() = default;
    Result(ErrorNumber error) // NOLINT(google-explicit-constructor): as above
        : m_error(error)
    { }

    [[nodiscard]] bool IsOk() const { return m_error == ErrorNumber::None; }
    explicit operator bool() const { return IsOk(); }
    [[nodiscard]] ErrorNumber Error() const { return m_error; }

private:
    ErrorNumber m_error = ErrorNumber::None;
};

} // namespace Quillory

/// Evaluates an expression that gives a Result. Where that is a failure, the function ends with it;
/// its own result can be made from an ErrorNumber. A statement:
///
///     QUILLORY_TRY(file.VerifyInPlace());
#define QUILLORY_TRY(...)                                                                          \
    if (const auto triedResult = (__VA_ARGS__); !triedResult)                                      \
    return triedResult.Error()

/// The same, and gives the value to a variable that it declares, or that there is. Several
/// statements, so that it cannot be the only one of an if or a loop without braces:
///
///     QUILLORY_TRY_VALUE(const qint64 version, ReadFileVersion());
#define QUILLORY_TRY_VALUE(variable, ...)                                                          \
    QUILLORY_TRY_VALUE_BY(variable, QUILLORY_JOIN(triedResult, __LINE__), (__VA_ARGS__))

// Neither names nor declarations can stand in parentheses.
// NOLINTBEGIN(bugprone-macro-parentheses)
#define QUILLORY_TRY_VALUE_BY(variable, result, expression)                                        \
    auto result = expression;                                                                      \
    if (!result)                                                                                   \
        return result.Error();                                                                     \
    variable = std::move(*result)
// NOLINTEND(bugprone-macro-parentheses)
#define QUILLORY_JOIN(first, second) QUILLORY_JOIN_NAMES(first, second)
#define QUILLORY_JOIN_NAMES(first, second) first##second

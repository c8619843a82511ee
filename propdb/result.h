// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/error_number.h"

#include <utility>
#include <variant>

namespace Quillory {

/// A value, or the number that says why there is none.
template <typename T> class [[nodiscard]] Result
{
public:
    Result(T value) // NOLINT(google-explicit-constructor): a function returns its value as it is
        : m_state(std::move(value))
    { }
    Result(ErrorNumber error) // NOLINT(google-explicit-constructor): or its failure
        : m_state(error)
    { }

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

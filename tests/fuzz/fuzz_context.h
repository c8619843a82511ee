// SPDX-License-Identifier: MIT
#pragma once

#include "tests/list_fixture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace Quillory {

/// What must hold for every input; where it does not, the input is kept as one that breaks it.
inline void Require(bool isTrue, const char* what)
{
    if (!isTrue)
        qFatal("broken: %s", what);
}

/// A list's own columns and one of every type.
constexpr std::array kFuzzedColumns { PropName, PropCount, MakePropertyId(1, CEVT_LPWSTR),
    MakePropertyId(2, CEVT_BOOL), MakePropertyId(3, CEVT_R8), MakePropertyId(4, CEVT_I4),
    MakePropertyId(5, CEVT_FILETIME) };

/// Locales whose dates, numbers and code pages differ, one of them chosen by a number; each is made
/// once. It is always the same day.
inline const ValueContext& FuzzedContext(size_t number)
{
    static const std::array contexts { TestContext(QStringLiteral("en_US")),
        TestContext(QStringLiteral("de_DE")), TestContext(QStringLiteral("ja_JP")),
        TestContext(QStringLiteral("th_TH")) };
    return contexts[number % contexts.size()];
}

/// Whether a row's line reads back as the same row: every value is there, and the price is one that
/// its text holds.
inline bool IsPlain(std::span<const PropertyValue> row)
{
    constexpr double kManyDigits = 1e50;
    return std::all_of(row.begin(), row.end(), [](const PropertyValue& value) {
        const auto* price = std::get_if<double>(&value.value);
        return !value.IsMissing() && (price == nullptr || std::abs(*price) < kManyDigits);
    });
}

} // namespace Quillory

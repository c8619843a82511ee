// SPDX-License-Identifier: MIT
#pragma once

#include "values/value_text.h"

#include <QDate>

#include <optional>

namespace Quillory {

/// The day that somebody means who types `text` into a field of the window, from 1601 on. What the
/// user's locale reads goes before: then come "today" in English and as `wordForToday`, in any
/// case; a sign with at most five figures, for days from today; and a day and a month, in the
/// order of the locale's short form unless only the other gives a day, of this year. Nothing for
/// any other text. A time alone names no day.
[[nodiscard]] std::optional<QDate> ReadTypedDate(
    const QString& text, const QString& wordForToday, const ValueContext& context);

} // namespace Quillory

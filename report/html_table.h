// SPDX-License-Identifier: MIT
#pragma once

#include "report/report_source.h"

#include <QByteArray>

namespace Quillory {

/// A text as it stands in a page: escaped, and without control characters but TABs and ends of
/// lines, as pages have no others.
[[nodiscard]] QByteArray HtmlText(const QString& text);

/// The head of a page up to its body, in the language of the reader.
[[nodiscard]] QByteArray HtmlBegin(const QString& title);
/// The begin of a table up to its first row: its columns.
[[nodiscard]] QByteArray HtmlTableBegin(const std::vector<ColumnDefinition>& columns);
/// A row, with the words of `warnings` beside its name.
[[nodiscard]] QByteArray HtmlRow(const std::vector<PropertyValue>& values,
    const RowWarnings& warnings, const ValueContext& context);

} // namespace Quillory

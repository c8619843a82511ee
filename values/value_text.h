// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"
#include "platform/locale_profile.h"
#include "propdb/property_value.h"
#include "propdb/scanned_record.h"

#include <QString>
#include <QStringView>

#include <optional>
#include <string>

namespace Quillory {

/// What a value's text depends on besides the value. Copies are cheap enough to make once per
/// window or command, not once per cell.
struct ValueContext
{
    /// Writes prices, reads dates.
    LocaleProfile userLocale;
    /// Writes dates.
    LocaleProfile systemLocale;
    Clock clock;
    QString checkedText;
    QString uncheckedText;

    /// The locales of the environment, the real clock and the texts of the string table.
    [[nodiscard]] static ValueContext FromEnvironment();
};

/// The text of a cell in the rows view. `value` is null for a property that the row lacks: empty.
/// Checkboxes have no text: the view draws their box.
[[nodiscard]] QString FormatCellText(
    const PropertyValue* value, PropertyId column, const ValueContext& context);
/// The text of a value in the row editor: as in a cell, but "Checked" or "Unchecked", the latter
/// also for a missing value. A price has at most 63 units: as many as are read back.
[[nodiscard]] QString FormatEditText(
    const PropertyValue* value, PropertyId column, const ValueContext& context);
/// The text of a value in an export file: prices with a point and two decimals, "Y" or "N".
[[nodiscard]] QString FormatExportText(const PropertyValue& value, const ValueContext& context);
/// As FormatExportText, of a property that a record has, appended to `line`.
void AppendExportText(std::u16string& line, const ScannedRecord& record, std::size_t place,
    PropertyId column, const ValueContext& context);

/// What a text typed for a column stores; nothing for a date that cannot be read. Integers are read
/// by LeadingInteger, prices by ParsePriceText; a checkbox is checked unless the text is exactly
/// "Unchecked".
[[nodiscard]] std::optional<PropertyValue> ParseValueText(
    PropertyId column, QStringView text, const ValueContext& context);
/// What a field of an import file stores; nothing for a date that cannot be read. Differs from
/// typed text in prices (a comma ends the number) and checkboxes (checked unless exactly "N").
[[nodiscard]] std::optional<PropertyValue> ParseImportText(
    PropertyId column, QStringView text, const ValueContext& context);

/// The text in the device's code page, its first 63 bytes, read as a number.
[[nodiscard]] double ParseAnsiNumber(QStringView text, const ValueContext& context);
/// The same after every comma has become a point.
[[nodiscard]] double ParsePriceText(QStringView text, const ValueContext& context);
/// Midnight of the day that the text names in the user's locale; nothing if it names none or one
/// before 1601.
[[nodiscard]] std::optional<FileTime> ParseDateText(QStringView text, const ValueContext& context);

} // namespace Quillory

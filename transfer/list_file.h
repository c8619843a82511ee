// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDevice>
#include <QString>

#include <memory>

namespace Quillory {

// The text format of a list: UTF-16, low byte first, behind a byte-order mark; a line per row,
// ended by CR LF, with a TAB between two fields and nothing quoted. Files in the 8-bit code page of
// the user are read as well.

constexpr char16_t kFieldSeparator = u'\t';
constexpr char16_t kLineEnd = u'\r';

/// A text file, or why there is none.
struct ListFile
{
    /// Null on failure.
    std::unique_ptr<QFileDevice> file;
    /// For a person to read; empty on success.
    QString failure;

    /// Ends what was written; to be called once all of it was. Why it failed, empty if it did not.
    [[nodiscard]] QString Commit() const;
};

/// Opens a text file for export. What is written takes the place of an existing file, with its
/// permissions, or makes a new one, when it is committed; without that, or if it fails, there is
/// what there was. What is no plain file is written to as it is. The data file at `dataFile`, by
/// whatever name, and its journal are refused and left alone.
[[nodiscard]] ListFile CreateListFile(const QString& path, const QString& dataFile);
/// Opens a text file for import, for reading only. Refuses what is refused above.
[[nodiscard]] ListFile OpenListFile(const QString& path, const QString& dataFile);

} // namespace Quillory

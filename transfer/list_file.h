// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
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
    std::unique_ptr<QFile> file;
    /// For a person to read; empty on success.
    QString failure;
};

/// Opens a text file for export: an existing one is emptied, a missing one made. The data file at
/// `dataFile`, by whatever name, is refused and left alone.
[[nodiscard]] ListFile CreateListFile(const QString& path, const QString& dataFile);
/// Opens a text file for import, for reading only. The data file is refused as above.
[[nodiscard]] ListFile OpenListFile(const QString& path, const QString& dataFile);

} // namespace Quillory

// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/database.h"
#include "store/inventory_list.h"

#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace Quillory {

/// A row as far as it is looked at to find out whether it is the same as another.
struct RowMark
{
    Origin origin = kNoOrigin;
    /// Equal for equal values, in this run of the program.
    quint64 fingerprint = 0;
    ObjectId row = kNoObject;
};

/// What tells lists apart in all copies of a file: the name of the row database and the identifiers
/// of its columns.
using ListKey = std::pair<QString, std::vector<PropertyId>>;
[[nodiscard]] ListKey KeyOf(const InventoryList& list);
[[nodiscard]] std::vector<PropertyId> ColumnIds(const InventoryList& list);

struct ListContents
{
    ObjectId record = kNoObject;
    InventoryList definition;
    /// By origin, each once.
    std::vector<RowMark> rows;
};

/// All lists of a data file.
struct FileContents
{
    History history;
    std::map<ListKey, ListContents> lists;
};
/// Reads each row once, in the order in which rows are stored, and keeps 24 bytes of it.
[[nodiscard]] Result<FileContents> ReadContents(Volume& volume);

/// The values of a row in the order of its list's columns, those that are missing flagged.
using RowValues = std::vector<PropertyValue>;

/// Reads single rows of a list.
class RowReader
{
public:
    /// `list` is one of the volume's and outlives the reader, as the volume does.
    RowReader(Volume& volume, const InventoryList& list);
    [[nodiscard]] Result<RowValues> Read(ObjectId row);

private:
    Volume& m_volume;
    const InventoryList& m_list;
    std::vector<PropertyId> m_ids;
    std::unique_ptr<Database> m_rows;
};

} // namespace Quillory

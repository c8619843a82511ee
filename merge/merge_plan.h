// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/identity.h"
#include "propdb/volume.h"
#include "store/inventory_list.h"

#include <vector>

namespace Quillory {

/// Something of a merge that a person may want to know, from the side of this device: what came
/// from the other one, what went because of it, and what was decided where both had changed the
/// same.
struct MergeNote
{
    enum class Kind
    {
        ListCame,
        ListWent,
        /// Deleted on one device, and changed or given rows on the other: it stays.
        ListKept,
        /// Both devices had made a list of this name and these columns: it is one now.
        ListsJoined,
        RowCame,
        RowWent,
        /// Deleted on one device and changed on the other: it stays.
        RowKept,
        /// A copy of the row holds the values that were decided against.
        RowCopied,
        /// `kept` came in the place of `other`.
        ValueCame,
        /// Both had changed it: `kept` is what it is on both devices now, `other` what one of them
        /// had.
        ValueDecided,
        /// Both had counted: `kept` has both differences.
        CountsAdded,
        /// As above, but the sum does not fit and ends at the limit.
        CountsLimited,
    };
    Kind kind {};
    QString list;
    /// The row's name; empty where the note is about the list.
    QString row;
    /// The column's name; where there is no row, the name in English of what the list is set to.
    QString column;
    PropertyValue kept {};
    PropertyValue other {};
    /// Of ListKept and RowKept.
    bool wasDeletedHere = false;
};

/// What has to be done to a row of this device's list.
struct RowChange
{
    enum class What
    {
        Add,
        Change,
        Remove,
    };
    What what {};
    /// kNoObject if it is added.
    ObjectId row = kNoObject;
    Origin origin = kNoOrigin;
    /// By the list's columns, those that are missing flagged.
    std::vector<PropertyValue> values;
};

/// What has to be done to a list.
struct ListPlan
{
    /// The list's record on this device; kNoObject if it is new here.
    ObjectId record = kNoObject;
    bool isRemoved = false;
    /// The list gets a row database of another name or other columns, so that it is the same on
    /// both devices.
    bool isRemade = false;
    bool isDefinitionChanged = false;
    /// As it is to be, columns and map name included.
    InventoryList definition;
    std::vector<RowChange> rows;
};

/// How two copies of a data file are related.
enum class Kinship
{
    /// This one has all that the other has: there is nothing to do.
    Known,
    /// The other one goes on from this one.
    Newer,
    /// Both were changed since they were one.
    Apart,
    /// What they have in common is not known: nothing is deleted.
    Unrelated,
};

struct MergePlan
{
    Kinship kinship = Kinship::Known;
    /// The base is the latest that both come from, so that nothing is decided that need not be.
    bool isBaseExact = false;
    /// Only the lists to which something has to be done.
    std::vector<ListPlan> lists;
    /// List by list in the order of their names, then of the names of rows.
    std::vector<MergeNote> notes;
    /// Where the merged contents come from.
    History history;
};

/// Compares two copies of a data file and decides what the merged one holds; writes nothing. Both
/// devices come to the same contents, whichever of them is `mine`, but for widths and orders of
/// columns, which are mine. `base` is what both come from, null if it is not known.
///
/// - A value that one side has changed is that side's. Where both have, counts get both
/// differences,
///   if the base is the latest that both come from and has the row; of others the one of the
///   greater state stays. Texts that are decided against are kept in a copy of the row.
/// - A row or list that one side has deleted and the other left alone goes. One that the other has
///   changed (of a list: renamed, set otherwise, given or changed rows) stays as that side has it.
/// - Without a base, whatever one side lacks comes from the other.
/// - Lists are the same by their map names and the identifiers of their columns; rows by their
///   origins. Two lists that are in no base become one if their names and columns are equal, and
///   then rows with equal values are one, too.
///
/// A base that is older than what the two have in common (a file can be copied amid a run, of which
/// only the beginning and the end are kept) is used as one that may be wrong about counts: they are
/// decided as other values are. The failures of reading.
[[nodiscard]] Result<MergePlan> PlanMerge(Volume& mine, Volume& theirs, Volume* base);

} // namespace Quillory

// SPDX-License-Identifier: MIT
#pragma once

#include "store/data_volume.h"
#include "store/inventory_list.h"
#include "values/column_type.h"

#include <functional>
#include <optional>

namespace Quillory {

/// The database "InvLists" of a data file: one record per list, kept in the order of their names.
class ListCatalogue
{
public:
    static constexpr DatabaseType kCatalogueType { 71990001 };
    static constexpr DatabaseType kRowsType { 71990002 };
    /// Rows that were deleted and are kept aside until PurgeDeleted().
    static constexpr DatabaseType kDeletedRowsType { 71990003 };
    inline static const QString kDatabaseName = QStringLiteral("InvLists");
    /// What the names of set-aside rows end in. Map names end in a digit.
    static constexpr QChar kDeletedMark { u'~' };
    /// The orders of lists and of rows: by their names.
    static constexpr SortOrder kByListName { MakePropertyId(11001, CEVT_LPWSTR) };
    static constexpr SortOrder kByRowName { PropName };
    /// The longest order of columns that is read, in entries.
    static constexpr qsizetype kMaxColumnOrder = 256;

    /// `volume` outlives the catalogue.
    explicit ListCatalogue(DataVolume& volume);

    enum class OpenOutcome
    {
        Opened,
        CannotCreateTable,
        CannotOpen,
    };
    /// The properties that a list's record can have.
    [[nodiscard]] static std::span<const PropertySpec> RecordProperties();

    /// Opens the catalogue, making it in a fresh volume (not in one mounted for reading).
    [[nodiscard]] OpenOutcome OpenCatalogue();
    /// Whether the data file has no table at all, as one whose making was cut short: it has no
    /// lists, and no catalogue that could be opened for reading.
    [[nodiscard]] bool IsWithoutTables() const;

    struct HomeListEntry
    {
        ObjectId oid = kNoObject;
        QString name;
        qint16 icon = 0;
    };
    struct HomeListing
    {
        std::vector<HomeListEntry> lists;
        /// Why lists are missing; None if none are.
        ErrorNumber error = ErrorNumber::None;
    };
    /// Every list, in the order of their names by 16-bit unit. One that cannot be read ends the
    /// listing: those before it are there.
    [[nodiscard]] HomeListing FillHomeList();
    /// The record of the first list so named; kNoObject if there is none.
    [[nodiscard]] ObjectId FindList(const QString& name);

    /// Nothing if the record is not there, cannot be read or has no name.
    [[nodiscard]] std::optional<QString> ReadListName(ObjectId oid);
    /// The definition that a record of the catalogue holds, as far as it goes; without columns.
    [[nodiscard]] static InventoryList DefinitionOf(std::span<const PropertyValue> record);
    /// The columns that the properties of a row database are.
    [[nodiscard]] static std::vector<ColumnDefinition> ColumnsOf(
        std::span<const PropertySpec> properties);

    /// Reads name, map name, icon and settings of a record into `definition`; false if the record
    /// cannot be read. Columns are not touched.
    [[nodiscard]] bool ReadListHeader(ObjectId oid, InventoryList& definition);
    /// The map name of a record; its settings go to `definition` unless that is null. Nothing, and
    /// `definition` as it was, if the record is not there, cannot be read or has no map name.
    [[nodiscard]] std::optional<QString> ReadListDefinition(
        ObjectId oid, InventoryList* definition);

    /// Adds a record; its identifier, kNoObject on failure.
    ObjectId AddList(const InventoryList& definition);
    /// Writes the name alone. This and the two that follow return false, with the record as it was,
    /// if it is not there or cannot be written.
    bool RenameList(ObjectId oid, const QString& name);
    /// Writes warnings, widths and column order, if any differs from what is stored.
    bool UpdateListOptions(ObjectId oid, const InventoryList& definition);
    /// Writes everything but the map name.
    bool UpdateList(ObjectId oid, const InventoryList& definition);

    struct CreateOutcome
    {
        /// The new record; kNoObject when it could not be added. A record whose row database could
        /// not be made is rolled back, but its identifier is told all the same.
        ObjectId oid = kNoObject;
        bool isCommitted = false;
    };
    /// Makes a list and its row database in one transaction. `definition` gets its map name, the
    /// identifiers of its columns and, if it has none, its column order.
    CreateOutcome CreateList(InventoryList& definition);
    /// The same, trying again where the numbers drawn collide: for lists that nobody sees made.
    CreateOutcome CreateListRedrawing(InventoryList& definition);

    /// Reads a list and opens its row database, columns included. False, and nothing open, if any
    /// of it fails. A row database that was open is closed first.
    [[nodiscard]] bool OpenList(ObjectId oid, InventoryList& definition);
    /// Opens a list that was read before, as `known`, from the file that is there now, in which
    /// another device may have changed all but the columns. Nothing, and nothing open, if its
    /// record is gone, is another list's, or cannot be read.
    [[nodiscard]] std::optional<InventoryList> OpenListAgain(
        ObjectId oid, const InventoryList& known);
    void CloseRows();

    /// Takes a list away with all its rows in one transaction; durable when it returns true. The
    /// rows are kept aside: RestoreList() brings them back, PurgeDeleted() ends them.
    bool DeleteList(ObjectId oid);

    enum class EmptyOutcome
    {
        Done,
        CannotOpen,
        /// The row database could not be made anew; everything was rolled back.
        CannotCreateRows,
    };
    /// Deletes every row of a list; its columns and its record stay. Durable when it returns Done.
    /// The rows are kept aside: RestoreRows() brings them back, PurgeDeleted() ends them.
    [[nodiscard]] EmptyOutcome DeleteAllRows(ObjectId oid);

    /// Brings a deleted list back, as its definition was before; its new record, kNoObject and
    /// nothing changed on failure. Durable.
    ObjectId RestoreList(const InventoryList& definition);
    /// Brings the deleted rows of a list back, beside those that it was given since. All or
    /// nothing; durable.
    bool RestoreRows(ObjectId oid);
    /// Ends what is kept aside: nothing of it stays in the file. False if some of it could
    /// not be deleted.
    bool PurgeDeleted();

    [[nodiscard]] DataVolume& Volume() { return m_volume; }

private:
    DataVolume& m_volume;

    bool CreateCatalogue();
    /// Makes a catalogue without lists anew if the version that made it gave it its last property
    /// only with the first list. One that has that property, or a list, stays as it is.
    void CompleteCatalogue();
    bool CreateRowDatabase(InventoryList& definition);
    /// The set-aside rows of a list of this map name; kNoObject if there are none.
    [[nodiscard]] ObjectId DeletedRowsOf(const QString& mapName);
    bool CopyRows(const QString& from, const QString& to);
};

} // namespace Quillory

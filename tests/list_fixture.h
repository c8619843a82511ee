// SPDX-License-Identifier: MIT
#pragma once

#include "store/list_catalogue.h"
#include "store/row_store.h"
#include "values/column_type.h"

#include <QDir>
#include <QTemporaryDir>

#include <memory>
#include <utility>

namespace Quillory {

/// A context that depends neither on the environment nor on the day.
inline ValueContext TestContext(const QString& locale = QStringLiteral("en_US"))
{
    const auto now = [] { return LocalTime { QDate(2026, 6, 15), QTime(12, 30) }; };
    return { LocaleProfile::For(locale), LocaleProfile::For(locale), now, QStringLiteral("Checked"),
        QStringLiteral("Unchecked") };
}

/// Makes a data file if there is none, and lists of the built-in columns in it.
inline void MakeLists(const QString& path, const QStringList& names)
{
    DataVolume volume;
    ListCatalogue catalogue(volume);
    if (volume.Mount(path, Disposition::OpenAlways) != ErrorNumber::None
        || catalogue.OpenCatalogue() != ListCatalogue::OpenOutcome::Opened)
        qFatal("the data file cannot be opened");
    for (const QString& name : names) {
        InventoryList list = NewInventoryList();
        list.Name = name;
        if (!catalogue.CreateList(list).isCommitted)
            qFatal("the list cannot be made");
    }
}

/// The lists of a data file that no program has open, each with its number of rows, such as
/// "Pantry 3, Tools 0"; "unreadable" if it cannot be opened.
inline QString ListsIn(const QString& path)
{
    DataVolume volume;
    ListCatalogue catalogue(volume);
    if (volume.Mount(path, Disposition::OpenExisting, VolumeAccess::ReadOnly) != ErrorNumber::None
        || catalogue.OpenCatalogue() != ListCatalogue::OpenOutcome::Opened)
        return QStringLiteral("unreadable");
    QStringList lists;
    for (const auto& entry : catalogue.FillHomeList().lists) {
        InventoryList list;
        const bool isOpen = catalogue.OpenList(entry.oid, list);
        lists << entry.name + u' '
                + (isOpen ? QString::number(volume.RecordCount(ListCatalogue::kRowsType))
                          : QStringLiteral("unreadable"));
    }
    return lists.join(QStringLiteral(", "));
}

/// The columns of the list that ListFixture makes.
enum FullListColumn
{
    Name,
    Count,
    Shelf,
    Bio,
    Price,
    Size,
    Bought,
    Expiry,
};

/// A data file with a catalogue, and verbs on lists and rows.
class ListFixture
{
public:
    ListFixture() { Start(); }
    /// Makes and opens a list of this name as MakeFullList does.
    explicit ListFixture(const QString& fullList)
        : ListFixture()
    {
        MakeFullList(fullList);
    }

    QString Path() const { return QDir(m_folder.path()).filePath(QStringLiteral("data.idb")); }

    /// Ends and starts the program, as far as data goes, and opens the list again that was open if
    /// it is still there.
    void Restart()
    {
        const ObjectId open = rows == nullptr ? kNoObject : m_open;
        rows.reset();
        catalogue.reset();
        data.reset();
        Start();
        if (open != kNoObject && catalogue->OpenList(open, list))
            rows = std::make_unique<RowStore>(*data, list, context);
    }
    /// Makes a list of the built-in columns and one column of each type, and opens it.
    ObjectId MakeFullList(const QString& name)
    {
        InventoryList made = NewInventoryList();
        made.Name = name;
        quint16 number = 10003;
        for (const auto& [title, type] : std::initializer_list<std::pair<QString, ValueType>> {
                 { QStringLiteral("Shelf"), CEVT_LPWSTR }, { QStringLiteral("Bio"), CEVT_BOOL },
                 { QStringLiteral("Price"), CEVT_R8 }, { QStringLiteral("Size"), CEVT_I4 },
                 { QStringLiteral("Bought"), CEVT_FILETIME } })
            made.columns.push_back({ title, 0, MakePropertyId(number++, type) });
        made.columns.push_back({ QStringLiteral("Expiry Date"), 0, PropExpiryDate });
        const auto created = catalogue->CreateListRedrawing(made);
        if (!created.isCommitted)
            qFatal("the list cannot be made");
        OpenList(created.oid);
        return created.oid;
    }
    void OpenList(ObjectId oid)
    {
        if (!catalogue->OpenList(oid, list))
            qFatal("the list cannot be opened");
        m_open = oid;
        rows = std::make_unique<RowStore>(*data, list, context);
    }
    ObjectId Add(const QStringList& texts) const
    {
        return rows->WriteNewRow(std::vector<QString>(texts.begin(), texts.end()));
    }
    PropertyId Column(int index) const { return list.columns[static_cast<size_t>(index)].id; }
    /// The cell texts of the given rows, a column of them joined by spaces.
    QString Cells(const std::vector<ObjectId>& oids, int column = 0) const
    {
        QStringList texts;
        for (const ObjectId oid : oids)
            texts << rows->FormatCellText(Column(column), oid);
        return texts.join(u' ');
    }

    ValueContext context = TestContext();
    std::unique_ptr<DataVolume> data;
    std::unique_ptr<ListCatalogue> catalogue;
    std::unique_ptr<RowStore> rows;
    InventoryList list;

private:
    QTemporaryDir m_folder;
    ObjectId m_open = kNoObject;

    void Start()
    {
        data = std::make_unique<DataVolume>();
        if (data->Mount(Path(), Disposition::OpenAlways) != ErrorNumber::None)
            qFatal("the data file cannot be mounted");
        catalogue = std::make_unique<ListCatalogue>(*data);
        if (catalogue->OpenCatalogue() != ListCatalogue::OpenOutcome::Opened)
            qFatal("the catalogue cannot be opened");
    }
};

} // namespace Quillory

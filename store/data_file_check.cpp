// SPDX-License-Identifier: MIT
#include "store/data_file_check.h"

#include "propdb/database.h"
#include "store/list_catalogue.h"

#include <QSet>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

using Info = Volume::DatabaseInfo;

/// Goes through the records of the catalogue; every list takes its rows out of `rows`.
Result<void> CheckLists(Volume& volume, QSet<QString>& rows, QStringList& faults)
{
    const auto lists
        = volume.OpenDatabase(ListCatalogue::kDatabaseName, ListCatalogue::kByListName);
    if (!lists) {
        faults << u"the list of lists is not in the order of their names"_s;
        return {};
    }
    const std::vector<PropertySpec> properties = (*lists)->Properties();
    for (const PropertySpec& spec : ListCatalogue::RecordProperties()) {
        if (spec.isDeclared
            && std::ranges::find(properties, spec.id, &PropertySpec::id) == properties.end())
            faults << u"the list of lists lacks its column “%1”"_s.arg(spec.name);
    }
    QUILLORY_TRY_VALUE(const auto oids, (*lists)->ListRecords());
    for (const ObjectId oid : oids) {
        const auto place = (*lists)->SeekTo(oid);
        QUILLORY_TRY_VALUE(const auto record, place ? (*lists)->ReadAll() : place.Error());
        const InventoryList list = ListCatalogue::DefinitionOf(record.values);
        if (list.Name.isEmpty())
            faults << u"a list has no name"_s;
        if (!rows.remove(list.MapName))
            faults << u"the list “%1” has no rows of its own"_s.arg(list.Name);
    }
    return {};
}

/// Whether the rows can be shown.
Result<bool> AreRowsSound(Volume& volume, const QString& name)
{
    const auto rows = volume.OpenDatabase(name, ListCatalogue::kByRowName);
    if (!rows)
        return rows.Error() == ErrorNumber::InvalidParameter ? Result<bool>(false) : rows.Error();
    return std::ranges::all_of((*rows)->Properties(), [](const PropertySpec& spec) {
        return PropertyType(spec.id) == StorageType(ColumnTypeOf(spec.id));
    });
}

Result<QStringList> CheckCatalogue(Volume& volume)
{
    QUILLORY_TRY_VALUE(const auto databases, volume.Databases());
    QStringList faults;
    QSet<QString> rows;
    int catalogues = 0;
    for (const Info& info : databases) {
        const bool isCatalogue = info.type == ListCatalogue::kCatalogueType;
        const bool isSetAside = info.type == ListCatalogue::kDeletedRowsType;
        catalogues += isCatalogue ? 1 : 0;
        if (isCatalogue != (info.name == ListCatalogue::kDatabaseName)
            || isSetAside != info.name.endsWith(ListCatalogue::kDeletedMark)
            || (!isCatalogue && !isSetAside && info.type != ListCatalogue::kRowsType)) {
            faults << u"the table “%1” is of another kind than its name"_s.arg(info.name);
            continue;
        }
        QUILLORY_TRY_VALUE(
            const auto isSound, isCatalogue ? Result<bool>(true) : AreRowsSound(volume, info.name));
        if (!isSound)
            faults << u"the rows of “%1” cannot be shown"_s.arg(info.name);
        if (info.type == ListCatalogue::kRowsType)
            rows.insert(info.name);
    }
    if (catalogues != 1 && !databases.empty())
        faults << u"there is no list of lists"_s;
    if (!faults.isEmpty() || databases.empty())
        return faults;
    QUILLORY_TRY(CheckLists(volume, rows, faults));
    for (const QString& name : std::as_const(rows))
        faults << u"no list has the rows “%1”"_s.arg(name);
    return faults;
}

} // namespace

Result<QStringList> CheckDataFile(Volume& volume)
{
    auto faults = volume.CheckPages();
    if (faults && faults->empty())
        faults = volume.Check();
    if (!faults)
        return faults.Error();
    // What a damaged page holds is not to be judged.
    return faults->empty() ? CheckCatalogue(volume) : QStringList(faults->begin(), faults->end());
}

} // namespace Quillory

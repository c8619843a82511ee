// SPDX-License-Identifier: MIT
#include "cli/column_words.h"
#include "cli/command_run.h"
#include "res/string_table.h"
#include "values/column_type.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <limits>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

QJsonArray JsonColumns(const InventoryList& list)
{
    QJsonArray columns;
    for (const ColumnDefinition& column : list.columns)
        columns.append(
            QJsonObject { { u"name"_s, column.name }, { u"type"_s, WordForColumn(column.id) } });
    return columns;
}

/// The identifier's number is drawn when the list is made.
ColumnDefinition ReadColumnDefinition(const QString& text)
{
    const qsizetype colon = text.lastIndexOf(u':');
    const QString word = text.mid(colon + 1);
    ColumnDefinition column;
    column.name = colon < 0 ? QString() : text.left(colon);
    const auto id = ColumnForWord(word);
    if (!id)
        FailUsage(u"“%1” ends in no column type"_s.arg(text));
    column.id = *id;
    if (column.id == PropExpiryDate && column.name.isEmpty())
        column.name = LoadString(StringId::TypeExpiryDate);
    if (column.name.isEmpty())
        FailUsage(u"“%1” names no column"_s.arg(text));
    if (column.name.size() > kMaxColumnNameLength)
        FailUsage(u"the name “%1” is longer than %2 characters"_s.arg(column.name)
                      .arg(kMaxColumnNameLength));
    return column;
}

void AddColumns(InventoryList& list, const QStringList& texts)
{
    for (const QString& text : texts) {
        const ColumnDefinition column = ReadColumnDefinition(text);
        const bool isSecondExpiry = column.id == PropExpiryDate
            && std::any_of(list.columns.begin(), list.columns.end(),
                [](const ColumnDefinition& other) { return other.id == PropExpiryDate; });
        if (isSecondExpiry)
            FailUsage(u"a list has one column of type expiry"_s);
        list.columns.push_back(column);
    }
    if (list.columns.size() > kMaxColumns)
        FailUsage(u"a list has at most %1 columns, the first two included"_s.arg(kMaxColumns));
}

void SetWarnings(InventoryList& list, const QCommandLineParser& parser)
{
    if (parser.isSet(u"warn-count"_s)) {
        list.TableOption |= kWarnOnCount;
        list.TableWarnStart = ReadInteger(parser, u"warn-count"_s,
            std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max());
    }
    if (parser.isSet(u"warn-expiry"_s))
        list.TableOption |= kWarnOnExpiry;
}

} // namespace

void RunLists(const CommandRun& run)
{
    const auto data = run.OpenForReading();
    JsonArrayWriter json(run.output, run.IsJson());
    const auto print = [&](const ListCatalogue::HomeListEntry& entry) {
        const auto count = data->Rows().RecordCount();
        if (!count)
            Fail(u"cannot count the rows: %1"_s.arg(ReadErrorText(count.Error())));
        if (json.IsWanted())
            json.Add({ { u"name"_s, entry.name }, { u"rows"_s, *count }, { u"icon"_s, entry.icon },
                { u"columns"_s, JsonColumns(data->list) } });
        else
            run.output.WriteFields({ entry.name, QString::number(*count) });
    };
    run.VisitLists(*data, print, [&json] { json.End(); });
}

void RunNew(const CommandRun& run)
{
    constexpr qint32 kLastIcon = 42;
    InventoryList list = NewInventoryList();
    list.Name = run.operands.front();
    CheckListName(list.Name);
    AddColumns(list, run.parser.values(u"column"_s));
    SetWarnings(list, run.parser);
    if (run.parser.isSet(u"icon"_s))
        list.TableIcon = static_cast<qint16>(ReadInteger(run.parser, u"icon"_s, 0, kLastIcon));

    const bool isCreating = run.parser.isSet(u"create"_s);
    const auto data
        = run.OpenForWriting(isCreating ? Disposition::OpenAlways : Disposition::OpenExisting);
    if (data->catalogue.FindList(list.Name) != kNoObject)
        Fail(u"there is a list named “%1” already"_s.arg(list.Name));
    if (!data->catalogue.CreateListRedrawing(list).isCommitted)
        Fail(u"cannot make the list: %1"_s.arg(ErrorText(data->volume.LastError())));
    run.KeepCopyOf(*data);
}

} // namespace Quillory

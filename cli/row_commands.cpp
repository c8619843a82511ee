// SPDX-License-Identifier: MIT
#include "cli/command_run.h"
#include "cli/conditions.h"
#include "cli/row_printer.h"
#include "store/column_scan.h"
#include "store/row_store.h"
#include "store/totals.h"
#include "values/column_type.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Null for a total that is no finite number.
QJsonValue JsonTotal(const QString& text)
{
    bool isNumber = false;
    const double total = text.toDouble(&isNumber);
    return isNumber ? QJsonValue(total) : QJsonValue();
}

[[nodiscard]] Database::VisitOutcome PrintByName(
    CommandData& data, const FilterSet& filters, const ValueContext& context, RowPrinter& printer)
{
    return ScanPastDamage(data.Rows(), printer.Ids(), &filters, context,
        [&printer](const ScannedRecord& row) { return printer.Print(row); });
}

/// A text without what differs in case or accents alone.
QString Folded(const QString& text)
{
    QString folded = text.normalized(QString::NormalizationForm_KD);
    folded.removeIf([](QChar unit) { return unit.category() == QChar::Mark_NonSpacing; });
    return folded.toCaseFolded();
}

/// Visits the texts of each row of the open list, in the order of its columns.
[[nodiscard]] Database::VisitOutcome VisitCellTexts(
    const CommandRun& run, CommandData& data, const std::function<void(const QStringList&)>& visit)
{
    std::vector<PropertyId> ids;
    std::vector<PropertyValue> values;
    for (const ColumnDefinition& column : data.list.columns) {
        ids.push_back(column.id);
        values.push_back({ column.id, 0, {} });
    }
    const ValueContext& context = run.environment.context;
    return ScanPastDamage(data.Rows(), ids, nullptr, context, [&](const ScannedRecord& row) {
        QStringList texts;
        for (size_t i = 0; i < values.size(); ++i) {
            row.Read(i, values[i]);
            texts << CellText(values[i], context);
        }
        visit(texts);
        return !run.output.HasFailed();
    });
}

/// Another order than that of names.
struct RowOrder
{
    std::optional<PropertyId> column;
    bool isDescending = false;
};

/// Holds the identifiers of the rows, not the rows.
[[nodiscard]] Database::VisitOutcome PrintSorted(CommandData& data, const FilterSet& filters,
    const RowOrder& order, const ValueContext& context, RowPrinter& printer)
{
    std::vector<ObjectId> rows;
    const auto listed
        = ScanPastDamage(data.Rows(), {}, &filters, context, [&rows](const ScannedRecord& row) {
              rows.push_back(row.Oid());
              return true;
          });
    Listing sorted { std::move(rows) };
    if (order.column)
        sorted = RowStore(data.volume, data.list, context)
                     .SortRows(std::move(sorted.rows), *order.column);
    if (order.isDescending)
        std::ranges::reverse(sorted.rows);
    const auto printed = data.Rows().VisitEach(sorted.rows, printer.Ids(),
        [&printer](const ScannedRecord& row) { return printer.Print(row); });
    // Rows that cannot be read cannot be sorted either: the others are in the order of names then.
    if (listed.error != ErrorNumber::None)
        return listed;
    return sorted.error == ErrorNumber::Cancelled ? Database::VisitOutcome { 0, sorted.error }
                                                  : printed;
}

} // namespace

void RunShow(const CommandRun& run)
{
    const ValueContext& context = run.environment.context;
    const auto data = run.OpenForReading();
    data->OpenList(run.operands.front());
    const FilterSet filters = ReadConditions(run.parser.values(u"where"_s), data->list, context);
    RowOrder order { {}, run.parser.isSet(u"descending"_s) };
    if (run.parser.isSet(u"sort"_s))
        order.column = FindColumn(run.parser.value(u"sort"_s), data->list).id;
    const RowForm lines
        = run.parser.isSet(u"no-header"_s) ? RowForm::LinesWithoutNames : RowForm::Lines;
    RowPrinter printer(run.output, run.IsJson() ? RowForm::Json : lines, data->list, context);
    const auto printed = order.column || order.isDescending
        ? PrintSorted(*data, filters, order, context, printer)
        : PrintByName(*data, filters, context, printer);
    printer.End();
    FailIfRowsAreMissing(printed);
}

void RunSummary(const CommandRun& run)
{
    const ValueContext& context = run.environment.context;
    const auto data = run.OpenForReading();
    data->OpenList(run.operands.front());
    const FilterSet filters = ReadConditions(run.parser.values(u"where"_s), data->list, context);
    const ListTotals totals = ComputeTotals(data->volume, data->list, &filters, context);
    if (totals.error != ErrorNumber::None)
        Fail(u"the rows cannot be totalled: %1"_s.arg(ReadErrorText(totals.error)));
    JsonArrayWriter json(run.output, run.IsJson());
    for (const ColumnTotal& total : totals.lines) {
        if (json.IsWanted())
            json.Add({ { u"name"_s, total.name }, { u"total"_s, JsonTotal(total.text) } });
        else
            run.output.WriteFields({ total.name, total.text });
    }
    json.End();
}

void RunFind(const CommandRun& run)
{
    const QString wanted = Folded(run.operands.front());
    const auto data = run.OpenForReading();
    JsonArrayWriter json(run.output, run.IsJson());
    const auto findInRow = [&](const QStringList& texts) {
        const InventoryList& list = data->list;
        const auto name = std::ranges::find(list.columns, PropName, &ColumnDefinition::id);
        const QString row = texts.value(name - list.columns.begin());
        for (qsizetype i = 0; i < texts.size(); ++i) {
            const QString& column = list.columns[static_cast<size_t>(i)].name;
            if (!Folded(texts[i]).contains(wanted))
                continue;
            if (json.IsWanted())
                json.Add({ { u"list"_s, list.Name }, { u"row"_s, row }, { u"column"_s, column },
                    { u"text"_s, texts[i] } });
            else
                run.output.WriteFields({ list.Name, row, column, texts[i] });
        }
    };
    run.VisitLists(
        *data,
        [&](const ListCatalogue::HomeListEntry&) {
            FailIfRowsAreMissing(VisitCellTexts(run, *data, findInRow));
        },
        [&json] { json.End(); });
}

} // namespace Quillory

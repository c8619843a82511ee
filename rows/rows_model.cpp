// SPDX-License-Identifier: MIT
#include "rows/rows_model.h"

#include "store/column_scan.h"
#include "values/column_type.h"
#include "values/file_date.h"

#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Several screens full.
constexpr int kShownRows = 512;
/// More of a text than any cell has room for.
constexpr qsizetype kMaxCellText = 260;

/// Throws while it can be caught where there is no room for so many lines: the header of the table
/// takes up to 16 bytes for each, and their lack would end the program.
void RequireRoomFor(size_t lines)
{
    constexpr size_t kHeaderBytes = 16;
    const QByteArray room(static_cast<qsizetype>(kHeaderBytes * lines), Qt::Uninitialized);
}

} // namespace

RowsModel::RowsModel(
    RowStore& rows, const InventoryList& list, const ValueContext& context, QObject* parent)
    : QAbstractTableModel(parent)
    , m_store(rows)
    , m_list(list)
    , m_context(context)
    , m_shown(kShownRows)
    , m_day(context.clock().date)
{
    m_dayTimer.setSingleShot(true);
    connect(&m_dayTimer, &QTimer::timeout, this, &RowsModel::FollowDay);
    // A computer that slept through midnight wakes with its timers behind.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &RowsModel::FollowDay);
    m_dayTimer.start(0);
}

void RowsModel::FollowDay()
{
    // The clock and its zone may be set at any time; nobody tells of that.
    constexpr int kLongestMs = 60'000;
    const LocalTime now = m_context.clock();
    const int toMidnightMs = now.time.msecsTo(QTime(23, 59, 59, 999)) + 1;
    m_dayTimer.start(std::min(toMidnightMs, kLongestMs));
    if (std::exchange(m_day, now.date) != now.date && !m_rows.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void RowsModel::SetRows(std::vector<ObjectId> rows)
{
    RequireRoomFor(rows.size());
    beginResetModel();
    m_rows = std::move(rows);
    // A listing is grown as it is read: a million rows would keep room for more.
    m_rows.shrink_to_fit();
    m_shown.clear();
    endResetModel();
}

ObjectId RowsModel::RowAt(int line) const
{
    return m_rows[static_cast<size_t>(line)];
}

void RowsModel::Insert(int line, ObjectId row)
{
    RequireRoomFor(m_rows.size() + 1);
    beginInsertRows({}, line, line);
    m_rows.insert(m_rows.begin() + line, row);
    endInsertRows();
}

void RowsModel::Remove(int line)
{
    beginRemoveRows({}, line, line);
    m_shown.remove(static_cast<quint32>(RowAt(line)));
    m_rows.erase(m_rows.begin() + line);
    endRemoveRows();
}

void RowsModel::Refresh(int line)
{
    m_shown.remove(static_cast<quint32>(RowAt(line)));
    Q_EMIT dataChanged(index(line, 0), index(line, columnCount() - 1));
}

void RowsModel::RefreshAll()
{
    m_shown.clear();
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

PropertyId RowsModel::ColumnId(int column) const
{
    return m_list.columns[static_cast<size_t>(column)].id;
}

const RowsModel::ShownRow& RowsModel::Shown(int line) const
{
    const auto key = static_cast<quint32>(RowAt(line));
    if (const ShownRow* shown = m_shown.object(key))
        return *shown;
    auto* shown = new ShownRow { m_store.ReadRow(RowAt(line)), {} };
    for (const ColumnDefinition& column : m_list.columns) {
        const PropertyValue* value = FindProperty(shown->record.values, column.id);
        shown->texts.push_back(shown->record
                ? FormatCellText(value, column.id, m_context).left(kMaxCellText)
                : u"<Err>"_s);
    }
    m_shown.insert(key, shown);
    return *m_shown.object(key);
}

RowFacts RowsModel::FactsOf(int line) const
{
    RowFacts facts;
    facts.line = line;
    const auto& values = Shown(line).record.values;
    if (const PropertyValue* count = FindProperty(values, PropCount))
        facts.count = std::get<qint32>(count->value);
    if (const PropertyValue* expiry = FindProperty(values, PropExpiryDate))
        facts.expiry = std::get<FileTime>(expiry->value);
    return facts;
}

bool RowsModel::IsCheckbox(int column) const
{
    return ColumnTypeOf(ColumnId(column)) == ColumnType::Checkbox;
}

bool RowsModel::IsNumber(int column) const
{
    return IsNumberColumn(ColumnId(column));
}

bool RowsModel::IsName(int column) const
{
    return ColumnId(column) == PropName;
}

QString RowsModel::Text(int line, int column) const
{
    return Shown(line).texts[static_cast<size_t>(column)];
}

bool RowsModel::IsChecked(int line, int column) const
{
    const PropertyValue* value = FindProperty(Shown(line).record.values, ColumnId(column));
    return value != nullptr && std::get<bool>(value->value);
}

int RowsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int RowsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_list.columns.size());
}

Qt::Alignment RowsModel::AlignmentOf(int column) const
{
    if (IsNumber(column))
        return Qt::AlignRight | Qt::AlignVCenter;
    if (IsCheckbox(column))
        return Qt::AlignCenter;
    return Qt::AlignLeft | Qt::AlignVCenter;
}

QString RowsModel::AccessibleText(int line, int column) const
{
    if (IsCheckbox(column))
        return IsChecked(line, column) ? m_context.checkedText : m_context.uncheckedText;
    return Text(line, column);
}

QString RowsModel::Spoken(int line, PropertyId id) const
{
    QStringList parts;
    for (int column = 0; column < columnCount(); ++column) {
        if (ColumnId(column) == id)
            parts << headerData(column, Qt::Horizontal, Qt::DisplayRole).toString() + u' '
                    + AccessibleText(line, column);
    }
    parts << WarningText(WarningsOf(line));
    parts.removeAll(QString());
    return parts.join(u", "_s);
}

RowWarnings RowsModel::WarningsOf(int line) const
{
    const auto today = DateToFileTime(m_context.clock().date).value_or(FileTime {});
    return WarningsFor(FactsOf(line), m_list, today);
}

QVariant RowsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return Text(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return QVariant(AlignmentOf(index.column()));
    case Qt::AccessibleTextRole:
        return AccessibleText(index.row(), index.column());
    case Qt::AccessibleDescriptionRole:
        return WarningText(WarningsOf(index.row()));
    case Qt::CheckStateRole:
        if (IsCheckbox(index.column()))
            return IsChecked(index.row(), index.column()) ? Qt::Checked : Qt::Unchecked;
        return {};
    default:
        return {};
    }
}

QModelIndexList RowsModel::match(const QModelIndex& start, int /*role*/, const QVariant& value,
    int /*hits*/, Qt::MatchFlags /*flags*/) const
{
    const std::vector<ObjectId> named = m_store.RowsNamed(value.toString());
    if (named.empty())
        return {};
    const RowSet found(named);
    const int lines = rowCount();
    for (int i = 0; i < lines; ++i) {
        const int line = (start.row() + i) % lines;
        if (found.Contains(RowAt(line)))
            return { index(line, start.column()) };
    }
    return {};
}

QVariant RowsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return m_list.columns[static_cast<size_t>(section)].name;
    if (role == Qt::TextAlignmentRole)
        return QVariant(AlignmentOf(section));
    return {};
}

} // namespace Quillory

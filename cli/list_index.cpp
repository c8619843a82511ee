// SPDX-License-Identifier: MIT
#include "cli/list_index.h"

#include "cli/column_words.h"
#include "cli/command_run.h"
#include "store/list_catalogue.h"
#include "values/column_type.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <limits>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Two columns of each list are told by words of their own.
constexpr std::array kOwnWords {
    std::pair(PropName, QLatin1StringView("name")),
    std::pair(PropCount, QLatin1StringView("quantity")),
};

/// One list of an index, read member by member; what is no such member ends the command.
class IndexEntry
{
public:
    IndexEntry(const QJsonObject& object, qsizetype number)
        : m_object(object)
        , m_number(number)
    { }

    [[noreturn]] void Refuse(const QString& member) const
    {
        Fail(u"list %1 of %2 has no “%3” that can be used"_s.arg(
            QString::number(m_number), kListIndexName, member));
    }
    [[nodiscard]] QString Text(const QString& member, qsizetype most) const
    {
        const QJsonValue value = m_object.value(member);
        if (!value.isString() || value.toString().size() > most)
            Refuse(member);
        return value.toString();
    }
    template <typename Number> [[nodiscard]] Number Integer(const QString& member) const
    {
        const qint64 least = std::numeric_limits<Number>::min();
        const qint64 value = m_object.value(member).toInteger(least - 1);
        if (value < least || value > qint64 { std::numeric_limits<Number>::max() })
            Refuse(member);
        return static_cast<Number>(value);
    }
    [[nodiscard]] std::vector<ColumnDefinition> Columns() const
    {
        std::vector<ColumnDefinition> columns;
        for (const QJsonValue value : m_object.value(u"columns"_s).toArray()) {
            const QString name = value[u"name"_s].toString();
            const auto id = ColumnOf(value[u"type"_s].toString());
            const bool isTwice = id && IsBuiltInColumn(*id)
                && std::ranges::find(columns, *id, &ColumnDefinition::id) != columns.end();
            if (!id || isTwice)
                Refuse(u"columns"_s);
            columns.push_back({ name, 0, *id });
        }
        if (columns.empty() || columns.size() > kMaxColumns)
            Refuse(u"columns"_s);
        return columns;
    }
    [[nodiscard]] std::vector<quint32> Order(size_t columns) const
    {
        std::vector<quint32> order;
        for (const QJsonValue value : m_object.value(u"order"_s).toArray()) {
            const qint64 column = value.toInteger(-1);
            if (column < 0 || column >= static_cast<qint64>(columns)
                || std::ssize(order) >= ListCatalogue::kMaxColumnOrder)
                Refuse(u"order"_s);
            order.push_back(static_cast<quint32>(column));
        }
        return order;
    }

private:
    QJsonObject m_object;
    qsizetype m_number;

    static std::optional<PropertyId> ColumnOf(const QString& word)
    {
        const auto own = std::ranges::find_if(
            kOwnWords, [&word](const auto& entry) { return entry.second == word; });
        return own == kOwnWords.end() ? ColumnForWord(word) : own->first;
    }
};

QString IndexWord(PropertyId column)
{
    const auto own = std::ranges::find_if(
        kOwnWords, [column](const auto& entry) { return entry.first == column; });
    return own == kOwnWords.end() ? WordForColumn(column) : QString(own->second);
}

} // namespace

void AddToListIndex(JsonArrayWriter& index, const IndexedList& entry)
{
    const InventoryList& list = entry.list;
    QJsonArray columns;
    for (const ColumnDefinition& column : list.columns)
        columns.append(
            QJsonObject { { u"name"_s, column.name }, { u"type"_s, IndexWord(column.id) } });
    QJsonArray order;
    for (const quint32 column : list.columnOrder) {
        if (column < list.columns.size())
            order.append(qint64 { column });
    }
    index.Add(
        { { u"name"_s, list.Name }, { u"file"_s, entry.fileName }, { u"icon"_s, list.TableIcon },
            { u"columns"_s, columns }, { u"order"_s, order }, { u"widths"_s, list.TableColSizes },
            { u"options"_s, qint64 { list.TableOption } }, { u"threshold"_s, list.TableWarnStart },
            { u"countColour"_s, qint64 { list.TableWarnColour } },
            { u"expiryColour"_s, qint64 { list.TableExpiryColour } } });
}

std::vector<IndexedList> ReadListIndex(const QByteArray& bytes)
{
    constexpr qsizetype kMostWidths = 1024;
    constexpr qsizetype kMostFileName = 255;
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (!document.isArray())
        Fail(u"%1 is no list of lists"_s.arg(kListIndexName));
    std::vector<IndexedList> entries;
    for (const QJsonValue value : document.array()) {
        const IndexEntry from(value.toObject(), std::ssize(entries) + 1);
        IndexedList entry;
        InventoryList& list = entry.list;
        list.Name = from.Text(u"name"_s, kMaxListNameLength);
        entry.fileName = from.Text(u"file"_s, kMostFileName);
        list.TableIcon = from.Integer<qint16>(u"icon"_s);
        list.columns = from.Columns();
        list.columnOrder = from.Order(list.columns.size());
        list.TableColSizes = from.Text(u"widths"_s, kMostWidths);
        list.TableOption = from.Integer<quint32>(u"options"_s);
        list.TableWarnStart = from.Integer<qint32>(u"threshold"_s);
        list.TableWarnColour = from.Integer<quint32>(u"countColour"_s);
        list.TableExpiryColour = from.Integer<quint32>(u"expiryColour"_s);
        if (list.Name.isEmpty())
            from.Refuse(u"name"_s);
        if (entry.fileName.isEmpty() || entry.fileName.contains(u'/'))
            from.Refuse(u"file"_s);
        entries.push_back(std::move(entry));
    }
    return entries;
}

} // namespace Quillory

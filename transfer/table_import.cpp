// SPDX-License-Identifier: MIT
#include "transfer/table_import.h"

#include "store/list_catalogue.h"
#include "transfer/separated_text.h"
#include "values/column_type.h"
#include "values/exchange_text.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr size_t kMostFaultsTold = 20;

QString NoValueText(PropertyId column, const QString& text)
{
    switch (ColumnTypeOf(column)) {
    case ColumnType::Integer:
        return u"“%1” is no whole number that the column can hold"_s.arg(text);
    case ColumnType::Price:
        return u"“%1” is no number with a point before its decimals"_s.arg(text);
    case ColumnType::Checkbox:
        return u"“%1” is neither true nor false"_s.arg(text);
    case ColumnType::Date:
        return u"“%1” is no date from 1601-01-01 on"_s.arg(text);
    case ColumnType::String:
        break;
    }
    return u"the text has a character that is none"_s;
}

/// The column that each field of the first line names; null for none. Of columns that share a name
/// each is named once.
std::vector<const ColumnDefinition*> NamedColumns(
    const InventoryList& list, const std::vector<SeparatedField>& fields)
{
    std::vector<const ColumnDefinition*> named;
    for (const SeparatedField& field : fields) {
        const auto found = std::ranges::find_if(list.columns, [&](const ColumnDefinition& column) {
            return column.name == field.text && std::ranges::find(named, &column) == named.end();
        });
        named.push_back(found == list.columns.end() ? nullptr : &*found);
    }
    return named;
}

/// The rows of a list by their values in a column, and the lines of a file that has them.
class RowsByKey
{
public:
    struct Entry
    {
        /// kNoObject if no row has the value yet.
        ObjectId row = kNoObject;
        bool isAmbiguous = false;
        /// The line that gave the value; 0 if none did.
        qint64 line = 0;
    };

    [[nodiscard]] Result<void> Load(Database& rows, PropertyId column)
    {
        PropertyValue value { column, 0, {} };
        return rows.ScanInPlace(
            std::span(&column, 1), ScanOrder::Any, [&](const ScannedRecord& record) {
                record.Read(0, value);
                if (value.IsMissing())
                    return true;
                Entry& entry = m_entries[FormatExchangeText(value)];
                entry.isAmbiguous = entry.row != kNoObject;
                entry.row = record.Oid();
                return true;
            });
    }
    [[nodiscard]] Entry& Find(const PropertyValue& value)
    {
        return m_entries[FormatExchangeText(value)];
    }

private:
    QHash<QString, Entry> m_entries;
};

class TableImport
{
public:
    TableImport(DataVolume& volume, const InventoryList& list, const TableImportRules& rules,
        QIODevice& source)
        : m_volume(volume)
        , m_list(list)
        , m_rules(rules)
        , m_reader(source)
    { }

    TableImportOutcome Run()
    {
        // A reader that has to make way begins again; the source can be read but once.
        if (m_rules.match) {
            Database* rows = m_volume.OpenDatabase(ListCatalogue::kRowsType);
            if (rows == nullptr)
                return FailStoring(m_volume.LastError());
            if (const auto loaded = m_keys.Load(*rows, *m_rules.match); !loaded)
                return FailStoring(loaded.Error());
        }
        if (!ReadHeader())
            return m_outcome;
        if (m_rules.isDryRun) {
            ReadRows();
            return m_outcome;
        }
        Transaction transaction(m_volume);
        if (!transaction)
            return FailStoring(m_volume.LastError());
        ReadRows();
        if (m_outcome.IsDone() && !transaction.Commit())
            return FailStoring(m_volume.LastError());
        return m_outcome;
    }

private:
    DataVolume& m_volume;
    const InventoryList& m_list;
    const TableImportRules& m_rules;
    SeparatedReader m_reader;
    /// The column of each field of a row; null where the first line names none.
    std::vector<const ColumnDefinition*> m_columns;
    RowsByKey m_keys;
    TableImportOutcome m_outcome;

    TableImportOutcome FailStoring(ErrorNumber error)
    {
        m_outcome.error = error;
        return m_outcome;
    }
    void AddFault(qint64 line, const QString& column, const QString& what)
    {
        ++m_outcome.faultCount;
        if (m_outcome.faults.size() < kMostFaultsTold)
            m_outcome.faults.push_back({ line, column, what });
    }

    /// How many columns the first line names if this parts its fields.
    qsizetype ColumnsNamedBy(QChar separator)
    {
        m_reader.SetSeparator(separator);
        const bool isRow = m_reader.Next();
        const auto named = NamedColumns(m_list, m_reader.Fields());
        m_reader.GoBack();
        return isRow ? std::ssize(named) - std::ranges::count(named, nullptr) : 0;
    }
    [[nodiscard]] QChar FindSeparator()
    {
        constexpr std::array<QChar, 3> kSeparators { u',', u';', u'\t' };
        QChar best = kSeparators.front();
        qsizetype most = 0;
        for (const QChar separator : kSeparators) {
            if (const qsizetype named = ColumnsNamedBy(separator); named > most) {
                most = named;
                best = separator;
            }
        }
        return best;
    }
    bool ReadHeader()
    {
        m_reader.SetSeparator(m_rules.separator.isNull() ? FindSeparator() : m_rules.separator);
        const bool isRow = m_reader.Next();
        m_columns = NamedColumns(m_list, m_reader.Fields());
        if (!m_reader.Fault().isEmpty())
            AddFault(m_reader.Line(), {}, m_reader.Fault());
        else if (!isRow)
            AddFault(1, {}, u"there is no line that names columns"_s);
        for (size_t i = 0; i < m_columns.size(); ++i) {
            const SeparatedField& field = m_reader.Fields()[i];
            if (m_columns[i] == nullptr && !field.text.isEmpty())
                AddFault(field.line, field.text, u"the list has no such column"_s);
        }
        const auto isMatch = [this](const ColumnDefinition* column) {
            return column != nullptr && column->id == m_rules.match;
        };
        if (m_outcome.IsDone() && m_rules.match && std::ranges::none_of(m_columns, isMatch))
            AddFault(1, {}, u"the column to match is not named"_s);
        return m_outcome.IsDone();
    }

    /// Goes on behind a fault, without storing any more, to find the others.
    void ReadRows()
    {
        while (m_outcome.error == ErrorNumber::None && m_reader.Next()) {
            const qint64 faults = m_outcome.faultCount;
            const auto values = ReadValues();
            RowsByKey::Entry* key = m_rules.match ? FindKey(values) : nullptr;
            if (m_outcome.faultCount == faults)
                TakeRow(values, key);
        }
        if (!m_reader.Fault().isEmpty())
            AddFault(m_reader.Line(), {}, m_reader.Fault());
    }
    /// The values of the columns that the first line names; those that have none are to be deleted.
    std::vector<PropertyValue> ReadValues()
    {
        std::vector<PropertyValue> values;
        for (const ColumnDefinition* column : m_columns) {
            if (column != nullptr)
                values.push_back({ column->id, CEDB_PROPDELETE, {} });
        }
        const std::vector<SeparatedField>& fields = m_reader.Fields();
        auto next = values.begin();
        for (size_t i = 0; i < fields.size(); ++i) {
            const SeparatedField& field = fields[i];
            const ColumnDefinition* column = i < m_columns.size() ? m_columns[i] : nullptr;
            const bool isMissing = field.IsMissing();
            if (column == nullptr) {
                if (!isMissing)
                    AddFault(field.line, {}, u"“%1” stands below no name"_s.arg(field.text));
                continue;
            }
            PropertyValue& value = *next++;
            // Others quote what is missing as well.
            if (isMissing
                || (field.text.isEmpty() && ColumnTypeOf(column->id) != ColumnType::String))
                continue;
            if (auto read = ParseExchangeText(column->id, field.text))
                value = std::move(*read);
            else
                AddFault(field.line, column->name, NoValueText(column->id, field.text));
        }
        return values;
    }
    /// Null and a fault where a line has no key of its own.
    RowsByKey::Entry* FindKey(const std::vector<PropertyValue>& values)
    {
        const auto value = std::ranges::find(values, *m_rules.match, &PropertyValue::id);
        const auto column
            = std::ranges::find(m_list.columns, *m_rules.match, &ColumnDefinition::id);
        const qint64 line = m_reader.Fields().front().line;
        if (value->flags != 0) {
            AddFault(line, column->name, u"there is no value to match"_s);
            return nullptr;
        }
        RowsByKey::Entry& entry = m_keys.Find(*value);
        if (entry.line != 0 || entry.isAmbiguous) {
            AddFault(line, column->name,
                entry.isAmbiguous ? u"several rows of the list have this value"_s
                                  : u"line %1 has the same value"_s.arg(entry.line));
            return nullptr;
        }
        entry.line = line;
        return &entry;
    }
    void TakeRow(std::vector<PropertyValue> values, const RowsByKey::Entry* key)
    {
        const bool isUpdate = key != nullptr && key->row != kNoObject;
        if (!isUpdate)
            std::erase_if(values, [](const PropertyValue& value) { return value.flags != 0; });
        if (values.empty())
            return;
        ++(isUpdate ? m_outcome.updated : m_outcome.added);
        if (m_rules.isDryRun || m_outcome.faultCount > 0)
            return;
        const ObjectId row = isUpdate ? key->row : kNoObject;
        if (m_volume.Write(ListCatalogue::kRowsType, row, values) == kNoObject)
            m_outcome.error = m_volume.LastError();
    }
};

} // namespace

TableImportOutcome ImportTable(
    DataVolume& volume, const InventoryList& list, const TableImportRules& rules, QIODevice& source)
{
    return TableImport(volume, list, rules, source).Run();
}

} // namespace Quillory

// SPDX-License-Identifier: MIT
#include "tests/faults/model.h"

#include <algorithm>
#include <span>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

bool IsOnRow(Action action)
{
    return action >= Action::ChangeRow && action <= Action::DeleteRow;
}

/// Draws the steps of a workload, keeping a model so that each step means something that is there.
class ScriptWriter
{
public:
    explicit ScriptWriter(quint32 seed)
        : m_random(seed)
    { }

    void Write(Step step)
    {
        std::vector<QByteArray> states;
        const Model before = m_model;
        for (size_t end = kImportBatch; end < step.rows.size(); end += kImportBatch) {
            Model partly = before;
            partly.ApplyImport(step, end);
            states.push_back(partly.Contents());
        }
        m_model.Apply(step);
        states.push_back(m_model.Contents());
        m_script.steps.push_back(std::move(step));
        m_script.states.push_back(std::move(states));
    }

    void WriteOneOf(Action action)
    {
        Step step { action, SomeList(), {}, Below(1000), {}, static_cast<qint32>(Below(90)) };
        if (action == Action::AddList)
            step.list = NewName();
        if (action == Action::RenameList)
            step.newName = NewName();
        if (action == Action::Backup)
            step.number = ++m_backups;
        if (action == Action::AddRow || action == Action::ChangeRow)
            step.rows.resize(1);
        if (action == Action::ImportRows)
            step.rows.resize(3 + Below(14));
        std::generate(step.rows.begin(), step.rows.end(), [this] { return SomeRow(); });
        if (m_model.CanApply(step))
            Write(std::move(step));
    }

    void WriteRound()
    {
        std::array<Action, kActionCount + 8> actions {};
        for (size_t i = 0; i < actions.size(); ++i)
            actions[i] = i < kActionCount ? static_cast<Action>(i) : Action::AddRow;
        std::shuffle(actions.begin(), actions.end(), m_random);
        for (const Action action : actions)
            WriteOneOf(action);
    }

    [[nodiscard]] const Script& Written() const { return m_script; }

private:
    std::mt19937 m_random;
    Model m_model;
    Script m_script;
    int m_names = 0;
    int m_backups = 0;

    size_t Below(size_t limit) { return m_random() % limit; }
    /// Ends in no digit, so that no two row databases get the same name.
    QString NewName() { return u"List %1."_s.arg(++m_names); }
    QString SomeList()
    {
        const auto names = m_model.ListNames();
        return names.empty() ? QString() : names[Below(names.size())];
    }
    ModelRow SomeRow()
    {
        QString name = u"Row %1 é"_s.arg(Below(40));
        // Now and then a row that fills more than a page.
        if (Below(12) == 0)
            name += u" long"_s.repeated(static_cast<qsizetype>(Below(700)));
        return { name, static_cast<qint32>(Below(100)) - 20, Below(2) == 0,
            static_cast<qint32>(Below(5000)),
            QDate(2026, 1, 1).addDays(static_cast<int>(Below(900))) };
    }
};

} // namespace

std::array<QString, 5> RowTexts(const ModelRow& row)
{
    return { row.name, QString::number(row.count), row.isTicked ? u"Y"_s : u"N"_s,
        QString::number(row.hundredths / 100.0, 'f', 2), row.expiry.toString(u"M/d/yyyy"_s) };
}

QString LineOf(const ModelRow& row)
{
    const auto texts = RowTexts(row);
    return QStringList(texts.begin(), texts.end()).join(u'\t') + u"\r\n"_s;
}

Step AnotherList()
{
    return { Action::AddList, u"Afterwards"_s, {}, 0, {}, 0 };
}

const Model::List* Model::Find(const QString& name) const
{
    const auto found = std::find_if(
        m_lists.begin(), m_lists.end(), [&name](const List& list) { return list.name == name; });
    return found == m_lists.end() ? nullptr : &*found;
}

Model::List* Model::Find(const QString& name)
{
    return const_cast<List*>(std::as_const(*this).Find(name));
}

std::vector<QString> Model::ListNames() const
{
    std::vector<QString> names;
    for (const List& list : m_lists)
        names.push_back(list.name);
    return names;
}

bool Model::CanApply(const Step& step) const
{
    const List* list = Find(step.list);
    if (step.action == Action::AddList || step.action == Action::Backup)
        return step.action == Action::Backup || list == nullptr;
    return list != nullptr && !(IsOnRow(step.action) && list->rows.empty());
}

void Model::Add(List& list, const ModelRow& row)
{
    list.rows.push_back({ row, m_nextNumber++ });
    Sort(list);
}

void Model::Sort(List& list)
{
    std::sort(list.rows.begin(), list.rows.end(), [](const NumberedRow& a, const NumberedRow& b) {
        return a.row.name == b.row.name ? a.number < b.number : a.row.name < b.row.name;
    });
}

void Model::ApplyToRow(List& list, const Step& step)
{
    const auto place = static_cast<std::ptrdiff_t>(step.row % list.rows.size());
    ModelRow& row = list.rows[static_cast<size_t>(place)].row;
    if (step.action == Action::ChangeRow)
        row = step.rows.front();
    else if (step.action == Action::AddOne)
        ++row.count;
    else if (step.action == Action::Tick)
        row.isTicked = !row.isTicked;
    else if (step.action == Action::DeleteRow)
        list.rows.erase(list.rows.begin() + place);
    else
        Add(list, ModelRow(row));
    Sort(list);
}

void Model::ApplyImport(const Step& step, size_t rowCount)
{
    auto rows = step.rows;
    rows.resize(std::min(rowCount, rows.size()));
    // Each batch is stored in the order of names, which tells rows apart that are named alike
    // later.
    for (size_t begin = 0; begin < rows.size(); begin += kImportBatch) {
        const auto batch
            = std::span(rows).subspan(begin, std::min(kImportBatch, rows.size() - begin));
        std::ranges::stable_sort(batch, {}, &ModelRow::name);
    }
    for (const ModelRow& row : rows)
        Add(*Find(step.list), row);
}

void Model::Apply(const Step& step)
{
    List* list = Find(step.list);
    if (step.action == Action::AddList)
        m_lists.push_back({ step.list, 0, {} });
    else if (step.action == Action::RenameList)
        list->name = step.newName;
    else if (step.action == Action::ChangeOptions)
        list->options = step.number;
    else if (step.action == Action::AddRow)
        Add(*list, step.rows.front());
    else if (step.action == Action::ImportRows)
        ApplyImport(step, step.rows.size());
    else if (step.action == Action::DeleteAllRows)
        list->rows.clear();
    else if (step.action == Action::DeleteList)
        m_lists.erase(m_lists.begin() + (list - m_lists.data()));
    else if (IsOnRow(step.action))
        ApplyToRow(*list, step);
}

QByteArray Model::Contents() const
{
    std::vector<const List*> sorted;
    for (const List& list : m_lists)
        sorted.push_back(&list);
    std::sort(sorted.begin(), sorted.end(),
        [](const List* a, const List* b) { return a->name < b->name; });
    QString text;
    for (const List* list : sorted) {
        text += u"%1 %2\r\n"_s.arg(list->name).arg(list->options);
        for (const NumberedRow& row : list->rows)
            text += LineOf(row.row);
    }
    return text.toUtf8();
}

const QByteArray& Script::After(size_t stepCount) const
{
    static const QByteArray nothing;
    return stepCount == 0 ? nothing : states[stepCount - 1].back();
}

bool Script::Allows(size_t acknowledged, const QByteArray& contents) const
{
    if (contents == After(acknowledged))
        return true;
    return acknowledged < states.size()
        && std::find(states[acknowledged].begin(), states[acknowledged].end(), contents)
        != states[acknowledged].end();
}

Script MakeScript(quint32 seed, size_t length)
{
    ScriptWriter writer(seed);
    writer.WriteOneOf(Action::AddList);
    while (writer.Written().steps.size() < length)
        writer.WriteRound();
    return writer.Written();
}

} // namespace Quillory

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

#include <array>
#include <random>
#include <vector>

namespace Quillory {

/// What a workload does to a data file; each is one transaction but for the import.
enum class Action
{
    AddList,
    RenameList,
    ChangeOptions,
    AddRow,
    /// From this one to DeleteRow they need a row.
    ChangeRow,
    AddOne,
    Tick,
    CopyRow,
    DeleteRow,
    DeleteAllRows,
    DeleteList,
    /// A transaction for every kImportBatch rows.
    ImportRows,
    /// Leaves the data file as it is and makes another.
    Backup,
};
constexpr int kActionCount = 13;
constexpr size_t kImportBatch = 5;

struct ModelRow
{
    QString name;
    qint32 count = 0;
    bool isTicked = false;
    qint32 hundredths = 0;
    QDate expiry;
};

/// A row as an export writes it and an import reads it, by columns and as a line.
[[nodiscard]] std::array<QString, 5> RowTexts(const ModelRow& row);
[[nodiscard]] QString LineOf(const ModelRow& row);

/// One step of a workload. Which fields matter depends on the action.
struct Step
{
    Action action {};
    /// The list's name, and the other name that it gets.
    QString list;
    QString newName;
    /// Stands for the row at this place, modulo the number of rows.
    size_t row = 0;
    std::vector<ModelRow> rows;
    /// The number of an option, or of a backup.
    qint32 number = 0;
};

/// Makes a list that no script makes.
[[nodiscard]] Step AnotherList();

/// What a data file should hold, kept beside it by the simplest means.
class Model
{
public:
    /// Whether there is the list and the row that the step means.
    [[nodiscard]] bool CanApply(const Step& step) const;
    void Apply(const Step& step);
    /// An import of which only the first rows came in.
    void ApplyImport(const Step& step, size_t rowCount);
    /// The contents in the words of Session::Contents().
    [[nodiscard]] QByteArray Contents() const;

    [[nodiscard]] std::vector<QString> ListNames() const;

private:
    struct NumberedRow
    {
        ModelRow row;
        /// Grows with each row; parts rows of one name.
        int number = 0;
    };
    struct List
    {
        QString name;
        qint32 options = 0;
        std::vector<NumberedRow> rows;
    };

    std::vector<List> m_lists;
    int m_nextNumber = 0;

    [[nodiscard]] const List* Find(const QString& name) const;
    List* Find(const QString& name);
    void ApplyToRow(List& list, const Step& step);
    void Add(List& list, const ModelRow& row);
    static void Sort(List& list);
};

/// A workload with what the file may hold after each of its transactions.
struct Script
{
    std::vector<Step> steps;
    /// Per step the contents after each of its transactions; the last one is the step's outcome.
    std::vector<std::vector<QByteArray>> states;

    /// The contents after the first steps.
    [[nodiscard]] const QByteArray& After(size_t stepCount) const;
    /// Whether a file may hold this once the first steps were acknowledged and no other one.
    [[nodiscard]] bool Allows(size_t acknowledged, const QByteArray& contents) const;
};

/// Steps drawn from every action, at least `length` of them; the same for the same seed.
[[nodiscard]] Script MakeScript(quint32 seed, size_t length = 40);

} // namespace Quillory

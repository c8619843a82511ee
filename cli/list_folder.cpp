// SPDX-License-Identifier: MIT
#include "cli/list_folder.h"

#include "cli/list_index.h"
#include "cli/text_source.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// A name for the file of a list that no other has, also where case makes no difference.
QString FileNameFor(const QString& list, const QString& suffix, const QStringList& taken)
{
    // In UTF-8 still shorter than the longest name of a file.
    constexpr qsizetype kMostUnits = 60;
    QString stem = list.left(kMostUnits);
    std::replace_if(
        stem.begin(), stem.end(),
        [](QChar unit) {
            return unit == u'/' || unit == u'\\' || unit.category() == QChar::Other_Control
                || unit.isSurrogate();
        },
        QChar(u'_'));
    if (stem.startsWith(u'.') || stem.startsWith(u'-'))
        stem.front() = u'_';
    QString name = stem + u'.' + suffix;
    for (int number = 2; taken.contains(name, Qt::CaseInsensitive); ++number)
        name = u"%1-%2.%3"_s.arg(stem, QString::number(number), suffix);
    return name;
}

/// A folder from which lists are made.
class ListFolder
{
public:
    explicit ListFolder(const CommandRun& run)
        : m_run(run)
        , m_folder(run.parser.value(u"all"_s))
    {
        const TextSource index(run, m_folder.filePath(kListIndexName), std::nullopt);
        m_lists = ReadListIndex(index.Device().readAll());
    }

    /// Ends the command if a list is there already, or a file cannot be read. Counts the rows.
    void Check(CommandData& data)
    {
        bool isRight = true;
        QStringList names;
        for (const IndexedList& entry : m_lists) {
            const QString& name = entry.list.Name;
            if (names.contains(name) || data.catalogue.FindList(name) != kNoObject)
                Fail(u"there is a list named “%1” already"_s.arg(name));
            names << name;
            const auto outcome = Import(data.volume, entry, entry.list, true);
            isRight = TellFaults(m_run, outcome, entry.fileName) && isRight;
            m_rows.push_back(outcome.added);
        }
        if (!isRight)
            Fail(u"nothing was imported"_s);
    }
    void Make(CommandData& data) const
    {
        for (size_t i = 0; i < m_lists.size(); ++i) {
            InventoryList list = m_lists[i].list;
            const auto made = data.catalogue.CreateListRedrawing(list);
            if (!made.isCommitted)
                FailAt(list, data.volume.LastError());
            data.OpenList(made.oid);
            const auto outcome = Import(data.volume, m_lists[i], data.list, false);
            if (!outcome.IsDone()) {
                data.catalogue.CloseRows();
                data.catalogue.DeleteList(made.oid);
                data.catalogue.PurgeDeleted();
                FailAt(list, outcome.error);
            }
            Tell(i);
        }
    }
    void TellAll() const
    {
        for (size_t i = 0; i < m_lists.size(); ++i)
            Tell(i);
    }

private:
    const CommandRun& m_run;
    QDir m_folder;
    std::vector<IndexedList> m_lists;
    std::vector<qint64> m_rows;

    [[nodiscard]] TableImportOutcome Import(DataVolume& volume, const IndexedList& entry,
        const InventoryList& list, bool isDryRun) const
    {
        TableImportRules rules = RulesToRead(TableFormatOf(QFileInfo(entry.fileName).suffix()));
        rules.isDryRun = isDryRun;
        const TextSource source(m_run, m_folder.filePath(entry.fileName), QStringConverter::Utf8);
        return ImportTable(volume, list, rules, source.Device());
    }
    void Tell(size_t place) const
    {
        m_run.output.WriteFields({ m_lists[place].list.Name, QString::number(m_rows[place]) });
    }
    [[noreturn]] static void FailAt(const InventoryList& list, ErrorNumber error)
    {
        Fail(u"“%1” and what follows is not in: %2"_s.arg(list.Name, ErrorText(error)));
    }
};

void RefuseOperands(const CommandRun& run)
{
    if (!run.operands.isEmpty())
        FailUsage(u"“%1” is one argument too many"_s.arg(run.operands.front()));
}

} // namespace

void ExportAllLists(const CommandRun& run, TableFormat format)
{
    RefuseOperands(run);
    const QDir folder(run.parser.value(u"all"_s));
    if (!folder.mkpath(u"."_s))
        Fail(u"cannot make the folder %1"_s.arg(folder.path()));
    const auto data = run.OpenForReading();
    std::vector<IndexedList> written;
    QStringList taken { kListIndexName };
    const auto writeList = [&](const ListCatalogue::HomeListEntry&) {
        const QString name = FileNameFor(data->list.Name, TableFormatWord(format), taken);
        taken << name;
        const auto outcome = WriteTextFile(run, folder.filePath(name), [&](TextOutput& target) {
            return WriteTable(*data, format, run.environment.context, target);
        });
        written.push_back({ data->list, name });
        FailIfRowsAreMissing(outcome);
    };
    const auto writeIndex = [&] {
        const auto write = [&written](TextOutput& target) {
            JsonArrayWriter index(target, true);
            for (const IndexedList& entry : written)
                AddToListIndex(index, entry);
            index.End();
            return Database::VisitOutcome();
        };
        static_cast<void>(WriteTextFile(run, folder.filePath(kListIndexName), write));
    };
    run.VisitLists(*data, writeList, writeIndex);
}

void ImportAllLists(const CommandRun& run)
{
    RefuseOperands(run);
    for (const QString& option : { u"columns"_s, u"encoding"_s, u"format"_s, u"match"_s }) {
        if (run.parser.isSet(option))
            FailUsage(u"--%1 does not go with --all"_s.arg(option));
    }
    ListFolder folder(run);
    const bool isDryRun = run.parser.isSet(u"dry-run"_s);
    const auto disposition
        = run.parser.isSet(u"create"_s) ? Disposition::OpenAlways : Disposition::OpenExisting;
    const auto data = isDryRun ? run.OpenForReading() : run.OpenForWriting(disposition);
    folder.Check(*data);
    if (isDryRun)
        return folder.TellAll();
    folder.Make(*data);
    run.KeepCopyOf(*data);
}

} // namespace Quillory

// SPDX-License-Identifier: MIT
#include "app/data_file_opener.h"

#include "res/string_table.h"
#include "store/kept_copies.h"
#include "store/salvage.h"

#include <QFileInfo>
#include <QLocale>

#include <utility>

namespace Quillory {

DataFileOpener::DataFileOpener(ListCatalogue& catalogue, Settings& settings, QString copiesFolder,
    Prompts prompts, std::function<void(Outcome)> then)
    : m_catalogue(catalogue)
    , m_settings(settings)
    , m_copiesFolder(std::move(copiesFolder))
    , m_prompts(std::move(prompts))
    , m_then(std::move(then))
{ }

void DataFileOpener::Start()
{
    m_isFirstStart = m_settings.DbPath.isEmpty();
    if (!m_isFirstStart)
        return Mount();
    m_disposition = Disposition::OpenAlways;
    m_prompts.welcome(
        [this] { m_prompts.chooseFile([this](const QString& path) { TakeChosenFile(path); }); });
}

void DataFileOpener::TakeChosenFile(const QString& path)
{
    if (path.isEmpty())
        return m_then(Outcome::NothingChosen);
    if (path.size() > kMaxDataFilePathLength)
        return TellFailure(ErrorNumber::NameTooLong);
    m_settings.DbPath = path;
    Mount();
}

void DataFileOpener::Mount()
{
    const ErrorNumber error = m_catalogue.Volume().Mount(m_settings.DbPath, m_disposition);
    if (error == ErrorNumber::None)
        TellOfJournal();
    else if (error == ErrorNumber::FileNotFound)
        AskAboutMissingFile();
    else if (error == ErrorNumber::PathNotFound)
        AskAboutMissingFolder();
    else
        TellFailure(error);
}

void DataFileOpener::AskAboutMissingFile()
{
    m_prompts.ask(LoadString(StringId::DataFileNotFound), MessageIcon::Exclamation,
        MessageButtons::YesNoCancel, [this](MessageAnswer answer) {
            if (answer == MessageAnswer::Cancel)
                return GiveUp();
            if (answer == MessageAnswer::Yes)
                m_disposition = Disposition::OpenAlways;
            Mount();
        });
}

void DataFileOpener::AskAboutMissingFolder()
{
    m_prompts.ask(LoadString(StringId::CannotOpenDataFile), MessageIcon::Exclamation,
        MessageButtons::RetryCancel, [this](MessageAnswer answer) {
            if (answer == MessageAnswer::Retry)
                Mount();
            else
                GiveUp();
        });
}

void DataFileOpener::TellFailure(ErrorNumber error)
{
    m_prompts.ask(FillIn(LoadText(Text::CannotOpenDataFile), static_cast<qint64>(error)),
        MessageIcon::Stop, MessageButtons::Ok, [this, error](MessageAnswer) {
            if (error == ErrorNumber::FileCorrupt && !m_isFirstStart)
                OfferCopy();
            else if (error == ErrorNumber::ChangedOutside && !m_isFirstStart)
                OfferSalvage();
            else
                GiveUp();
        });
}

void DataFileOpener::OfferCopy()
{
    const std::vector<KeptCopy> copies = ListKeptCopies(m_settings.DbPath, m_copiesFolder);
    if (copies.empty())
        return OfferSalvage();
    const KeptCopy& latest = copies.front();
    const QString time = QLocale().toString(latest.time.toLocalTime(), QLocale::ShortFormat);
    AskToRestore(
        tr("The data file is damaged. There is a good copy of %1.\n\nDo you want to go on "
           "with it? It is written to a new file; the damaged one stays as it is.")
            .arg(time),
        [latest](const QString& target) { return RestoreCopy(latest, target).Error(); },
        [this] { OfferSalvage(); });
}

void DataFileOpener::OfferSalvage()
{
    const Result<SalvageReport> report = ExamineLists(m_settings.DbPath);
    if (!report || report->lists.empty())
        return GiveUp();
    qint64 rows = 0;
    for (const SalvageReport::List& list : report->lists)
        rows += list.rows;
    const QString question = report->wasChangedOutside
        ? tr(
            "Another program has written into the data file. What it holds now: %1, %2.\n\nDo "
            "you want to go on with that? It is written to a new file; the old one stays as it is.")
        : tr("What can still be read of the damaged file: %1, %2.\n\nDo you want to go on with "
             "that? It is written to a new file; the damaged one stays as it is.");
    AskToRestore(
        question.arg(tr("%n row(s)", nullptr, static_cast<int>(rows)),
            tr("%n list(s)", nullptr, static_cast<int>(report->lists.size()))),
        [damaged = m_settings.DbPath](
            const QString& target) { return SalvageLists(damaged, target).Error(); },
        [this] { GiveUp(); });
}

void DataFileOpener::AskToRestore(
    const QString& question, const Restorer& restore, const std::function<void()>& otherwise)
{
    m_prompts.ask(question, MessageIcon::Exclamation, MessageButtons::YesNo,
        [this, restore, otherwise](MessageAnswer answer) {
            if (answer == MessageAnswer::Yes)
                ChooseRestored(restore);
            else
                otherwise();
        });
}

void DataFileOpener::ChooseRestored(const Restorer& restore)
{
    m_prompts.chooseFile([this, restore](const QString& path) {
        if (path.isEmpty())
            return GiveUp();
        const ErrorNumber error
            = path.size() > kMaxDataFilePathLength ? ErrorNumber::NameTooLong : restore(path);
        if (error != ErrorNumber::None) {
            // Never over another file; another name may do.
            return m_prompts.ask(
                tr("The new file could not be written. Error: %1").arg(static_cast<quint32>(error)),
                MessageIcon::Stop, MessageButtons::Ok,
                [this, restore](MessageAnswer) { ChooseRestored(restore); });
        }
        m_settings.DbPath = path;
        m_disposition = Disposition::OpenExisting;
        Mount();
    });
}

void DataFileOpener::TellOfJournal()
{
    const QString aside = m_catalogue.Volume().MountedVolume()->JournalPutAside();
    if (aside.isEmpty())
        return OpenCatalogue();
    m_prompts.ask(tr("Beside the data file lay the journal of another file. It is kept as %1.")
                      .arg(QFileInfo(aside).fileName()),
        MessageIcon::Information, MessageButtons::Ok, [this](MessageAnswer) { OpenCatalogue(); });
}

void DataFileOpener::OpenCatalogue()
{
    if (m_catalogue.OpenCatalogue() != ListCatalogue::OpenOutcome::CannotCreateTable)
        return m_then(Outcome::Opened);
    m_prompts.ask(LoadText(Text::CannotCreateListTable), MessageIcon::Stop, MessageButtons::Ok,
        [this](MessageAnswer) { m_then(Outcome::Opened); });
}

void DataFileOpener::GiveUp()
{
    // A file that never was the data file must not become it for all later starts.
    if (m_isFirstStart)
        m_settings.DbPath.clear();
    m_then(Outcome::Failed);
}

} // namespace Quillory

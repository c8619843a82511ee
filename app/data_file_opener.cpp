#include "app/data_file_opener.h"

#include "res/string_table.h"

namespace Quillory {

DataFileOpener::DataFileOpener(ListCatalogue& catalogue, Settings& settings, Prompts prompts,
    std::function<void(Outcome)> then)
    : m_catalogue(catalogue)
    , m_settings(settings)
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
    m_settings.DbPath = path;
    Mount();
}

void DataFileOpener::Mount()
{
    const ErrorNumber error = m_catalogue.Volume().Mount(m_settings.DbPath, m_disposition);
    if (error == ErrorNumber::None)
        OpenCatalogue();
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
        MessageIcon::Stop, MessageButtons::Ok, [this](MessageAnswer) { GiveUp(); });
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

#pragma once

#include "app/settings.h"
#include "store/list_catalogue.h"
#include "widgets/message_box.h"

#include <functional>

namespace Quillory {

/// Brings the program from its settings to an open catalogue: asks for a place at the first start,
/// and for a way on where the data file cannot be opened.
class DataFileOpener
{
public:
    /// What is asked of the person. Each returns at once and calls `then` with the answer.
    struct Prompts
    {
        std::function<void(std::function<void()> then)> welcome;
        /// The answer is empty if no file was chosen.
        std::function<void(std::function<void(const QString& path)> then)> chooseFile;
        std::function<void(const QString& text, MessageIcon icon, MessageButtons buttons,
            std::function<void(MessageAnswer)> then)>
            ask;
    };

    enum class Outcome
    {
        Opened,
        /// No place was chosen at the first start: the program ends and saves nothing.
        NothingChosen,
        /// The file could not be opened: the window closes.
        Failed,
    };

    /// `catalogue` and `settings` outlive the opener, which outlives every answer; `then` comes
    /// once.
    DataFileOpener(ListCatalogue& catalogue, Settings& settings, Prompts prompts,
        std::function<void(Outcome)> then);

    void Start();

private:
    ListCatalogue& m_catalogue;
    Settings& m_settings;
    Prompts m_prompts;
    std::function<void(Outcome)> m_then;
    bool m_isFirstStart = false;
    Disposition m_disposition = Disposition::OpenExisting;

    void TakeChosenFile(const QString& path);
    void Mount();
    void AskAboutMissingFile();
    void AskAboutMissingFolder();
    void TellFailure(ErrorNumber error);
    void OpenCatalogue();
    void GiveUp();
};

} // namespace Quillory

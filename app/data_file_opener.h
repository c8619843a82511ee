// SPDX-License-Identifier: MIT
#pragma once

#include "store/list_catalogue.h"
#include "store/settings.h"
#include "widgets/message_box.h"

#include <QCoreApplication>

#include <functional>

namespace Quillory {

/// Brings the program from its settings to an open catalogue: asks for a place at the first start,
/// and for a way on where the data file cannot be opened.
class DataFileOpener
{
    Q_DECLARE_TR_FUNCTIONS(DataFileOpener)

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
    /// Copies of the data file are looked for in `copiesFolder`.
    DataFileOpener(ListCatalogue& catalogue, Settings& settings, QString copiesFolder,
        Prompts prompts, std::function<void(Outcome)> then);

    void Start();

private:
    ListCatalogue& m_catalogue;
    Settings& m_settings;
    QString m_copiesFolder;
    Prompts m_prompts;
    std::function<void(Outcome)> m_then;
    bool m_isFirstStart = false;
    Disposition m_disposition = Disposition::OpenExisting;

    void TakeChosenFile(const QString& path);
    void Mount();
    void AskAboutMissingFile();
    void AskAboutMissingFolder();
    void TellFailure(ErrorNumber error);
    /// Writes a new data file in the place of a damaged one.
    using Restorer = std::function<ErrorNumber(const QString& target)>;
    void OfferCopy();
    void OfferSalvage();
    void AskToRestore(
        const QString& question, const Restorer& restore, const std::function<void()>& otherwise);
    void ChooseRestored(const Restorer& restore);
    void TellOfJournal();
    void OpenCatalogue();
    void GiveUp();
};

} // namespace Quillory

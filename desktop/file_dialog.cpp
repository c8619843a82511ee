// SPDX-License-Identifier: MIT
#include "desktop/file_dialog.h"

#include "widgets/measures.h"
#include "widgets/questions.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QScreen>
#include <QStandardPaths>
#include <QToolButton>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Screens narrower than this have no room for the dialog's list of places.
constexpr int kNarrowScreen = 500;
/// On smaller ones the dialog takes all there is.
constexpr QSize kRoomyScreen(700, 600);

/// Makes the controls of the toolkit's own dialog high enough for a finger.
void FitToFingers(const QFileDialog& dialog)
{
    if (!HasTouchScreen())
        return;
    for (auto* button : dialog.findChildren<QToolButton*>())
        button->setFixedSize(kMinTouchTarget, kMinTouchTarget);
    for (auto* field : dialog.findChildren<QLineEdit*>())
        field->setMinimumHeight(kMinTouchTarget);
    for (auto* field : dialog.findChildren<QComboBox*>())
        field->setMinimumHeight(kMinTouchTarget);
}

/// Keeps the toolkit's own dialog, where the desktop brings none, on a phone's screen.
void FitToScreen(QFileDialog& dialog)
{
    const QSize free = dialog.screen()->availableGeometry().size();
    if (dialog.findChild<QWidget*>(u"sidebar"_s) == nullptr
        || free.boundedTo(kRoomyScreen) == kRoomyScreen)
        return;
    QStringList spares;
    if (free.width() < kNarrowScreen)
        spares << u"sidebar"_s << u"lookInLabel"_s << u"forwardButton"_s << u"listModeButton"_s
               << u"detailModeButton"_s << u"fileTypeLabel"_s << u"fileTypeCombo"_s;
    if (free.width() < kNarrowPage)
        spares << u"backButton"_s << u"fileNameLabel"_s;
    auto* lines = qobject_cast<QGridLayout*>(dialog.layout());
    auto* answers = dialog.findChild<QDialogButtonBox*>(u"buttonBox"_s);
    if (lines != nullptr && answers != nullptr && free.width() < kNarrowScreen) {
        // Below the names, not beside them.
        lines->removeWidget(answers);
        answers->setOrientation(Qt::Horizontal);
        lines->addWidget(answers, lines->rowCount(), 0, 1, lines->columnCount());
    }
    for (const QString& name : spares) {
        if (auto* spare = dialog.findChild<QWidget*>(name))
            spare->hide();
    }
    // Else as wide as the names that stand in them.
    for (const QString& name : { u"lookInCombo"_s, u"fileTypeCombo"_s, u"fileNameEdit"_s }) {
        if (auto* field = dialog.findChild<QWidget*>(name))
            field->setMinimumWidth(kMinTouchTarget);
    }
    dialog.setWindowState(Qt::WindowMaximized);
}

/// The toolkit takes a folder that is not there for the name of a file.
QString FirstFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

/// The names that pop up below what is typed come late at times. While they are up, the window that
/// the dialog gives way to does not become active and has no shortcuts.
void CloseSuggestions(QFileDialog& dialog)
{
    for (QCompleter* suggestions : dialog.findChildren<QCompleter*>()) {
        suggestions->setWidget(nullptr);
        suggestions->popup()->close();
    }
}

/// The dialog that ChooseFile() opens.
Question MakeFileDialog(QWidget* window, FileUse use, const FileKind& kind,
    const std::function<void(const QString& path)>& then)
{
    auto* dialog = new QFileDialog(window, QString(), FirstFolder());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(u"FileDialog"_s);
    dialog->setAcceptMode(use == FileUse::Read ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog->setFileMode(use == FileUse::Read ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog->setNameFilter(u"%1 (*.%2)"_s.arg(kind.name, kind.suffix));
    dialog->setDefaultSuffix(kind.suffix);
    dialog->setOption(QFileDialog::DontConfirmOverwrite, use == FileUse::MakeOrOpen);
    if (!kind.suggestion.isEmpty())
        dialog->selectFile(kind.suggestion);
    FitToScreen(*dialog);
    FitToFingers(*dialog);
    return { dialog, [dialog, then](int result) {
                CloseSuggestions(*dialog);
                then(result == QDialog::Accepted ? dialog->selectedFiles().value(0) : QString());
            } };
}

} // namespace

void ChooseFile(QWidget* parent, FileUse use, const FileKind& kind,
    const std::function<void(const QString& path)>& then)
{
    Questions::Of(parent).Ask([window = parent->window(), use, kind, then] {
        return MakeFileDialog(window, use, kind, then);
    });
}

} // namespace Quillory

#include "app/file_dialog.h"

#include <QFileDialog>
#include <QScreen>
#include <QStandardPaths>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Screens narrower than this have no room for the dialog's list of places.
constexpr int kNarrowScreen = 500;

/// Keeps the toolkit's own dialog, where the desktop brings none, on a phone's screen.
void FitToScreen(QFileDialog& dialog)
{
    const QRect free = dialog.screen()->availableGeometry();
    auto* places = dialog.findChild<QWidget*>(u"sidebar"_s);
    if (places == nullptr || free.width() >= kNarrowScreen)
        return;
    places->hide();
    if (auto* type = dialog.findChild<QWidget*>(u"fileTypeCombo"_s))
        type->setMinimumWidth(0);
    dialog.setWindowState(Qt::WindowMaximized);
}

} // namespace

void ChooseFile(QWidget* parent, FileUse use, const FileKind& kind,
    const std::function<void(const QString& path)>& then)
{
    auto* dialog = new QFileDialog(
        parent, QString(), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(u"FileDialog"_s);
    dialog->setAcceptMode(use == FileUse::Read ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog->setFileMode(use == FileUse::Read ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog->setNameFilter(u"%1 (*.%2)"_s.arg(kind.name, kind.suffix));
    dialog->setDefaultSuffix(kind.suffix);
    dialog->setOption(QFileDialog::DontConfirmOverwrite, use == FileUse::MakeOrOpen);
    if (!kind.suggestion.isEmpty())
        dialog->selectFile(kind.suggestion);
    QObject::connect(dialog, &QDialog::finished, parent, [dialog, then](int result) {
        then(result == QDialog::Accepted ? dialog->selectedFiles().value(0) : QString());
    });
    FitToScreen(*dialog);
    dialog->open();
}

} // namespace Quillory

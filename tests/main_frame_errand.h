// SPDX-License-Identifier: MIT
#pragma once

#include "app/home_list.h"
#include "app/main_frame.h"
#include "store/kept_copies.h"
#include "tests/file_bytes.h"
#include "tests/list_fixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTreeView>

namespace Quillory {

using namespace Qt::StringLiterals;

/// The program with settings and data file of its own, and what a person does with it.
class FrameErrand
{
    QTemporaryDir m_folder;

public:
    FrameErrand() = default;
    /// Started on a data file with these lists.
    explicit FrameErrand(const QStringList& lists)
    {
        MakeLists(lists);
        Start();
    }
    QString DataPath() const { return m_folder.filePath(u"Quillory.idb"_s); }
    QString CopiesFolder() const { return m_folder.filePath(u"copies"_s); }
    void MakeLists(const QStringList& names)
    {
        Quillory::MakeLists(DataPath(), names);
        WriteSettings(Conf(), { DataPath(), {}, kLandscapeRightHanded, {}, {}, {} });
    }
    /// Puts a file in the place of the data file, as programs do that keep folders alike.
    void ReplaceDataFile(const QString& by) const
    {
        QVERIFY(QFile::remove(DataPath()) && QFile::rename(by, DataPath()));
    }
    void Start(const QString& listName = {})
    {
        Settings settings;
        ReadSettings(Conf(), settings);
        frame = std::make_unique<MainFrame>(settings, MainFrame::Places { Conf(), CopiesFolder() });
        frame->SetFileChooser([this](const auto& then) { then(chosenPath); });
        frame->show();
        frame->OpenDataFile(listName);
        pages = frame->findChild<PageStack*>();
        home = frame->findChild<HomeList*>();
        view = home->findChild<QTreeView*>();
        QVERIFY(QTest::qWaitForWindowActive(frame.get()));
    }
    void Restart()
    {
        QVERIFY(frame->close());
        frame.reset();
        Start();
    }
    /// Taps the left soft key of the topmost page if that is the command's, else its entry in the
    /// menu of the right one.
    void Choose(Command command) const
    {
        QVERIFY(pages->Top()->ActionOf(command)->isEnabled());
        if (command == Command::New)
            return Press(u"leftKey"_s);
        Press(u"rightKey"_s);
        TapEntry(command);
        if (QApplication::activeModalWidget() == nullptr)
            ComeBack();
    }
    /// Taps an entry of the menu that is open.
    void TapEntry(Command command) const
    {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        for (const MenuId id :
            { MenuId::Main, MenuId::Rows, MenuId::ListContext, MenuId::RowContext }) {
            for (const MenuEntry& entry : MenuEntries(id)) {
                for (QAction* action : menu->actions()) {
                    if (entry.command == command && action->text() == entry.Text())
                        return QTest::mouseClick(
                            menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                }
            }
        }
        QFAIL("no such entry");
    }
    /// Taps a button of the topmost page.
    void Press(const QString& button) const
    {
        auto* found = pages->Top()->findChild<QWidget*>(button);
        QVERIFY(found != nullptr);
        QTest::mouseClick(found, Qt::LeftButton);
    }
    void PressOk() const { Press(u"ok"_s); }
    void PressCancel() const { Press(u"leftKey"_s); }
    void Answer(QMessageBox::StandardButton button)
    {
        QTRY_VERIFY(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr);
        const QPointer box(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
        QVERIFY(box->button(button) != nullptr);
        question = box->text();
        QTest::mouseClick(box->button(button), Qt::LeftButton);
        // Another question may follow at once.
        QTRY_VERIFY(box == nullptr || !box->isVisible());
    }
    void Tap(int line) const
    {
        const QRect place = view->visualRect(view->model()->index(line, 0));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place.center());
    }
    ObjectId ListNamed(const QString& name) const
    {
        const auto* model = qobject_cast<HomeListModel*>(view->model());
        for (int i = 0; i < model->rowCount(); ++i) {
            if (model->NameAt(model->index(i)) == name)
                return model->OidAt(model->index(i));
        }
        return kNoObject;
    }
    /// Chooses a file of this content for import, up to the order of its columns.
    void Import(const QByteArray& content)
    {
        const QString path = m_folder.filePath(QStringLiteral("in.txt"));
        WriteFileBytes(path, content);
        ChooseFileFor(Command::Import, path);
    }
    void ChooseFileFor(Command command, const QString& path) const
    {
        Choose(command);
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        dialog->selectFile(path);
        // A file that is read is looked for in what the dialog has gathered of its folder by then.
        static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
    }
    /// As a window manager does once a question is answered or a menu gone.
    void ComeBack() const
    {
        frame->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(frame.get()));
    }
    /// The lists of the newest kept copy and how many rows each has.
    QString NewestCopy() const
    {
        const auto copies = ListKeptCopies(DataPath(), CopiesFolder());
        return copies.empty() ? QStringLiteral("no copy") : ListsIn(copies.front().path);
    }
    QString Lines() const
    {
        QStringList names;
        for (int i = 0; i < view->model()->rowCount(); ++i)
            names << view->model()->index(i, 0).data().toString();
        return names.join(u", "_s);
    }

    std::unique_ptr<MainFrame> frame;
    PageStack* pages = nullptr;
    HomeList* home = nullptr;
    QTreeView* view = nullptr;
    QString question;
    /// What the file dialog for the data file answers.
    QString chosenPath = DataPath();

private:
    QString Conf() const { return m_folder.filePath(u"quillory.conf"_s); }
};

} // namespace Quillory

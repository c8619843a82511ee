// SPDX-License-Identifier: MIT
#pragma once

#include "app/main_frame.h"
#include "store/kept_copies.h"
#include "tests/file_bytes.h"
#include "tests/list_fixture.h"
#include "tests/person.h"

#include <QApplication>
#include <QFileDialog>
#include <QTest>

namespace Quillory {

using namespace Qt::StringLiterals;

/// Steps to the deletion of the selected list.
inline const QString kDeleteList = u"tap Menu; tap Delete List...; tap Yes"_s;

/// The program with settings and data file of its own.
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
    /// Started on one list and in it, with rows from a text file.
    FrameErrand(const QString& list, const QByteArray& rows)
        : FrameErrand(QStringList { list })
    {
        Import(rows);
        Act(u"tap OK"_s);
    }
    QString DataPath() const { return m_folder.filePath(u"Quillory.idb"_s); }
    QString CopiesFolder() const { return m_folder.filePath(u"copies"_s); }
    void MakeLists(const QStringList& names)
    {
        Quillory::MakeLists(DataPath(), names);
        Settings settings;
        settings.DbPath = DataPath();
        WriteSettings(Conf(), settings);
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
        if (!chosenPath.isEmpty())
            frame->SetFileChooser([this](const auto& then) { then(chosenPath); });
        frame->show();
        frame->OpenDataFile({ listName, {} });
        pages = frame->findChild<PageStack*>();
        QVERIFY(QTest::qWaitForWindowActive(frame.get()));
    }
    /// Closes the window; the lists that are in the data file then, as ListsIn tells them.
    QString ListsAtEnd()
    {
        const bool isClosed = frame->close();
        frame.reset();
        return isClosed ? ListsIn(DataPath()) : u"not closed"_s;
    }
    void Restart()
    {
        QVERIFY(ListsAtEnd() != u"not closed");
        Start();
    }
    /// Chooses a file of this content for import, up to the order of its columns.
    void Import(const QByteArray& content)
    {
        const QString path = m_folder.filePath(QStringLiteral("in.txt"));
        WriteFileBytes(path, content);
        ChooseFileFor(u"Import List..."_s, path);
    }
    void ChooseFileFor(const QString& command, const QString& path) const
    {
        Act(u"tap Menu; tap "_s + command);
        GiveFile(path);
    }
    /// Chooses a file in the dialog that is in front.
    static void GiveFile(const QString& path)
    {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        dialog->selectFile(path);
        // A file that is read is looked for in what the dialog has gathered of its folder by then.
        static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
    }
    /// The lists of the newest kept copy and how many rows each has.
    QString NewestCopy() const
    {
        const auto copies = ListKeptCopies(DataPath(), CopiesFolder());
        return copies.empty() ? QStringLiteral("no copy") : ListsIn(copies.front().path);
    }

    std::unique_ptr<MainFrame> frame;
    PageStack* pages = nullptr;
    /// What the file dialog for the data file answers; it is there to be answered if empty.
    QString chosenPath = DataPath();

private:
    QString Conf() const { return m_folder.filePath(u"quillory.conf"_s); }
};

} // namespace Quillory

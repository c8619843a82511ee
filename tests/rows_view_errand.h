// SPDX-License-Identifier: MIT
#pragma once

#include "rows/rows_view.h"
#include "tests/list_fixture.h"
#include "widgets/page_stack.h"

#include <QApplication>
#include <QHeaderView>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTest>

namespace Quillory {

/// A rows view over a list of every type, in a window, and what a person does there.
class RowsErrand
{
public:
    void Open(const RowsViewOptions& options = {})
    {
        page = nullptr;
        stack = std::make_unique<PageStack>();
        stack->Push(new Page(QString()));
        page = new RowsView(*file.rows, file.list, file.context, options);
        stack->Push(page);
        stack->resize(800, 480);
        stack->show();
        // Shortcuts are the active window's.
        if (!QTest::qWaitForWindowActive(stack.get()))
            qFatal("the window does not become active");
    }
    /// The table of the topmost page.
    QTableView* View() const { return stack->Top()->findChild<QTableView*>(); }
    QString Text(int line, int column) const
    {
        return View()->model()->index(line, column).data().toString();
    }
    QString Lines(int column = Name) const
    {
        QStringList texts;
        for (int line = 0; line < View()->model()->rowCount(); ++line)
            texts << Text(line, column);
        return texts.join(u' ');
    }
    /// A column of the stored rows, in the order of names.
    QString Stored(int column = Name) const
    {
        return file.Cells(file.rows->FillRows().rows, column);
    }
    bool IsTicked(int line, int column = Bio) const
    {
        const QModelIndex cell = View()->model()->index(line, column);
        return cell.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }
    QRect Cell(int line, int column) const
    {
        return View()->visualRect(View()->model()->index(line, column));
    }
    void Tap(int line, int column, const QPoint& offset = {}) const
    {
        QTest::mouseClick(
            View()->viewport(), Qt::LeftButton, {}, Cell(line, column).center() + offset);
    }
    void DoubleTap(int line, int column) const
    {
        Tap(line, column);
        QTest::mouseDClick(View()->viewport(), Qt::LeftButton, {}, Cell(line, column).center());
    }
    void TapHeader(int column) const
    {
        QHeaderView* header = View()->horizontalHeader();
        const QPoint place(header->sectionViewportPosition(column) + 20, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    }
    /// A control of the topmost page.
    template <typename T> T* Find(QLatin1StringView name) const
    {
        auto* found = stack->Top()->findChild<T*>(name);
        if (found == nullptr)
            qFatal("no %s on the page", name.data());
        return found;
    }
    void PressOk() const
    {
        QTest::mouseClick(Find<QWidget>(QLatin1StringView("ok")), Qt::LeftButton);
    }
    /// Types over what the editor's current field holds, then a key.
    void TypeInEditor(const QString& text, Qt::Key key) const
    {
        QWidget* control = QApplication::focusWidget();
        QTest::keyClicks(control, text);
        QTest::keyClick(control, key);
    }
    /// The message that is shown; null if there is none.
    QMessageBox* Message() const { return stack->findChild<QMessageBox*>(); }
    void Answer(QMessageBox::StandardButton button) const
    {
        if (Message() == nullptr)
            qFatal("no message to answer");
        QTest::mouseClick(Message()->button(button), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    ListFixture file { QStringLiteral("Pantry") };
    std::unique_ptr<PageStack> stack;
    RowsView* page = nullptr;
};

} // namespace Quillory

// SPDX-License-Identifier: MIT
#pragma once

#include "rows/rows_view.h"
#include "tests/list_fixture.h"
#include "tests/person.h"
#include "widgets/page_stack.h"

#include <QApplication>
#include <QHeaderView>
#include <QTableView>
#include <QTest>

namespace Quillory {

/// A rows view over a list of every type, in a window.
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
    /// A column of the stored rows, in the order of names.
    QString Stored(int column = Name) const
    {
        return file.Cells(file.rows->FillRows().rows, column);
    }
    QRect Cell(int line, int column) const
    {
        return View()->visualRect(View()->model()->index(line, column));
    }

    ListFixture file { QStringLiteral("Pantry") };
    std::unique_ptr<PageStack> stack;
    RowsView* page = nullptr;
};

} // namespace Quillory

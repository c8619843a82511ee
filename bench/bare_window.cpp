// SPDX-License-Identifier: MIT
#include "bench/start_report.h"

#include <QApplication>
#include <QMainWindow>
#include <QStandardItemModel>
#include <QTreeView>

/// bare_window STARTED LINES: the least that a program with a window of lines can do.
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QMainWindow window;
    QStandardItemModel lines;
    for (int i = 0; i < arguments.value(2).toInt(); ++i)
        lines.appendRow(new QStandardItem(QStringLiteral("List %1").arg(i)));
    auto* view = new QTreeView(&window);
    view->setModel(&lines);
    window.setCentralWidget(view);
    window.resize(360, 640);
    window.show();
    QCoreApplication::processEvents();
    window.repaint();
    Quillory::ReportStart(arguments.value(1).toLongLong());
    return 0;
}

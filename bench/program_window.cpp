// SPDX-License-Identifier: MIT
#include "app/main_frame.h"
#include "bench/start_report.h"
#include "desktop/desktop_look.h"
#include "widgets/app_style.h"
#include "widgets/window_style.h"

#include <QApplication>

/// program_window STARTED FILE: the program's window up to the lists of a data file.
int main(int argc, char** argv)
{
    using namespace Quillory;
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QApplication::setStyle(new AppStyle);
    const DesktopLook look(QDBusConnection::sessionBus(), std::nullopt);
    EnlargeLetters();
    Settings settings;
    settings.DbPath = arguments.value(2);
    MainFrame frame(settings, {});
    frame.show();
    // As the program does, whose first frame shows the lists.
    QMetaObject::invokeMethod(
        &frame, [&frame] { frame.OpenDataFile({}); }, Qt::QueuedConnection);
    QCoreApplication::processEvents();
    frame.repaint();
    ReportStart(arguments.value(1).toLongLong());
    return 0;
}

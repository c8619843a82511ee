#include "widgets/window_style.h"

#include <QFile>
#include <QWidget>

// Resources of a static library are not found unless somebody asks for them by name.
static void LoadStyleResources()
{
    Q_INIT_RESOURCE(icons);
}

namespace Quillory {

void ApplyWindowStyle(QWidget* window)
{
    LoadStyleResources();
    QFile sheet(QStringLiteral(":/window.qss"));
    if (sheet.open(QIODevice::ReadOnly))
        window->setStyleSheet(QString::fromUtf8(sheet.readAll()));
}

} // namespace Quillory

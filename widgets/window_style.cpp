#include "widgets/window_style.h"

#include "widgets/measures.h"

#include <QEvent>
#include <QFile>
#include <QWidget>

#include <algorithm>

// Resources of a static library are not found unless somebody asks for them by name.
static void LoadStyleResources()
{
    Q_INIT_RESOURCE(icons);
}

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

QString StyleSheet(const QWidget& window)
{
    LoadStyleResources();
    QFile file(u":/window.qss"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString sheet = QString::fromUtf8(file.readAll());
    // Menu entries are as high as the lines of lists.
    const int text = window.fontMetrics().height();
    const int padding = std::max(4, (CurrentMeasures().lineHeight - text) / 2);
    return sheet.replace(u"@menu-padding@"_s, QString::number(padding) + u"px"_s);
}

/// Works the colours of the palette into the style again whenever they change.
class StyleKeeper : public QObject
{
public:
    explicit StyleKeeper(QWidget* window)
        : QObject(window)
        , m_window(window)
    {
        window->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_window && event->type() == QEvent::ApplicationPaletteChange) {
            m_window->setStyleSheet(QString());
            m_window->setStyleSheet(StyleSheet(*m_window));
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget* m_window;
};

} // namespace

void ApplyWindowStyle(QWidget* window)
{
    window->setStyleSheet(StyleSheet(*window));
    new StyleKeeper(window);
}

} // namespace Quillory

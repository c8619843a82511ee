// SPDX-License-Identifier: MIT
#include "widgets/window_style.h"

#include "widgets/measures.h"

#include <QEvent>
#include <QFile>
#include <QResizeEvent>
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

/// The line below a tab.
constexpr int kTabRule = 3;

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
    const auto set = [&sheet](const QString& name, int pixels) {
        sheet.replace(u'@' + name + u'@', QString::number(pixels) + u"px"_s);
    };
    set(u"menu-padding"_s, padding);
    // With the padding and the border of a button.
    set(u"answer-height"_s,
        CurrentMeasures().lineHeight >= kMinTouchTarget ? kMinTouchTarget - 14 : 24);
    set(u"tab-height"_s, FrameMeasures(window.height()).headerHeight - kTabRule);
    return sheet;
}

/// Works the colours of the palette into the style again whenever they change. So it does with the
/// font: a style sheet holds on to the one that it was worked out with. And where the window
/// becomes low, or no longer is.
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
        if (watched == m_window && IsOutdatedBy(*event)) {
            m_window->setStyleSheet(QString());
            m_window->setStyleSheet(StyleSheet(*m_window));
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget* m_window;

    [[nodiscard]] static bool IsOutdatedBy(const QEvent& event)
    {
        if (event.type() == QEvent::Resize) {
            const auto& resize = static_cast<const QResizeEvent&>(event);
            return &FrameMeasures(resize.size().height())
                != &FrameMeasures(resize.oldSize().height());
        }
        return event.type() == QEvent::ApplicationPaletteChange
            || event.type() == QEvent::ApplicationFontChange;
    }
};

} // namespace

void ApplyWindowStyle(QWidget* window)
{
    window->setStyleSheet(StyleSheet(*window));
    new StyleKeeper(window);
}

} // namespace Quillory

// SPDX-License-Identifier: MIT
#include "widgets/window_style.h"

#include "widgets/ink.h"
#include "widgets/measures.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QFont>
#include <QPalette>
#include <QResizeEvent>
#include <QScreen>
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

QString TextOf(const QString& resource)
{
    QFile file(resource);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString StyleSheet(const QWidget& window)
{
    LoadStyleResources();
    QString sheet;
    // What is pressed or has the keyboard looks so under a mouse, too.
    if (!HasTouchScreen())
        sheet += TextOf(u":/mouse.qss"_s);
    sheet += TextOf(u":/window.qss"_s);
    // Menu entries are as high as the lines of lists.
    const int text = window.fontMetrics().height();
    const int padding = std::max(4, (CurrentMeasures().lineHeight - text) / 2);
    const auto replace = [&sheet](const QString& name, const QString& value) {
        sheet.replace(u'@' + name + u'@', value);
    };
    const auto set = [&replace](const QString& name, int pixels) {
        replace(name, QString::number(pixels) + u"px"_s);
    };
    set(u"menu-padding"_s, padding);
    // Right to left the toolkit has this margin on both sides.
    set(u"tick-margin"_s, window.isRightToLeft() ? kPageMargin : 2);
    // With the padding and the border of a button.
    set(u"answer-height"_s, HasTouchScreen() ? kMinTouchTarget - 14 : 24);
    set(u"tab-height"_s, FrameMeasures(window.height()).headerHeight - kTabRule);
    const QPalette& palette = window.palette();
    replace(u"accent"_s, AccentInk(palette).name());
    replace(u"quiet"_s, palette.color(QPalette::PlaceholderText).name());
    replace(u"disabled"_s, palette.color(QPalette::Disabled, QPalette::Text).name());
    replace(u"disabled-button"_s, palette.color(QPalette::Disabled, QPalette::ButtonText).name());
    replace(u"tint"_s, TintedGround(palette).name());
    replace(u"ok-hover"_s, StrongerAccent(palette).name());
    replace(u"outline"_s, OutlineColour(palette).name());
    replace(u"hairline"_s, HairlineColour(palette).name());
    return sheet;
}

/// As QFontInfo tells it, which would load the font.
int PixelSizeOf(const QFont& font)
{
    constexpr double kPointsPerInch = 72;
    return font.pixelSize() > 0 ? font.pixelSize()
                                : qRound(font.pointSizeF() / kPointsPerInch
                                    * QGuiApplication::primaryScreen()->logicalDotsPerInchY());
}

} // namespace

void EnlargeLetters()
{
    QFont font = QApplication::font();
    if (PixelSizeOf(font) >= CurrentMeasures().textSize)
        return;
    font.setPixelSize(CurrentMeasures().textSize);
    QApplication::setFont(font);
}

namespace {

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
        if (watched == m_window && event->type() == QEvent::ApplicationFontChange)
            EnlargeLetters();
        if (watched == m_window && IsOutdatedBy(*event))
            Dress();
        return QObject::eventFilter(watched, event);
    }

    /// Works the style out. A change that is told again, as at the start, costs nothing.
    void Dress()
    {
        const Measures* frame = &FrameMeasures(m_window->height());
        if (frame == m_frame && m_window->font() == m_font && QApplication::palette() == m_palette)
            return;
        m_frame = frame;
        m_font = m_window->font();
        m_palette = QApplication::palette();
        // A sheet that is there before its window is polished is read twice.
        m_window->ensurePolished();
        // The colours of a dressed window are partly the style's own.
        m_window->setStyleSheet(QString());
        m_window->setStyleSheet(StyleSheet(*m_window));
    }

private:
    QWidget* m_window;
    const Measures* m_frame = nullptr;
    QFont m_font;
    QPalette m_palette;

    [[nodiscard]] static bool IsOutdatedBy(const QEvent& event)
    {
        if (event.type() == QEvent::Resize) {
            const auto& resize = static_cast<const QResizeEvent&>(event);
            return &FrameMeasures(resize.size().height())
                != &FrameMeasures(resize.oldSize().height());
        }
        // The application's font is the window's only once this has come.
        return event.type() == QEvent::ApplicationPaletteChange
            || event.type() == QEvent::FontChange;
    }
};

} // namespace

void ApplyWindowStyle(QWidget* window)
{
    EnlargeLetters();
    (new StyleKeeper(window))->Dress();
}

} // namespace Quillory

// SPDX-License-Identifier: MIT
#include "widgets/icon_set.h"

#include "widgets/colour_palette.h"
#include "widgets/ink.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <array>
#include <functional>
#include <utility>

// Resources of a static library are not found unless somebody asks for them by name.
static void LoadIconResources()
{
    Q_INIT_RESOURCE(icons);
}

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

struct ListIconEntry
{
    const char* name;
    /// Its colour on a light ground, by its index in the palette.
    quint32 colour;
};

constexpr std::array<ListIconEntry, kListIconCount> kListIcons { {
    { QT_TRANSLATE_NOOP("Icons", "List"), 33 },
    { QT_TRANSLATE_NOOP("Icons", "Box"), 13 },
    { QT_TRANSLATE_NOOP("Icons", "Jar"), 13 },
    { QT_TRANSLATE_NOOP("Icons", "Refrigerator"), 16 },
    { QT_TRANSLATE_NOOP("Icons", "Freezer"), 16 },
    { QT_TRANSLATE_NOOP("Icons", "Apple"), 6 },
    { QT_TRANSLATE_NOOP("Icons", "Carrot"), 13 },
    { QT_TRANSLATE_NOOP("Icons", "Bread"), 13 },
    { QT_TRANSLATE_NOOP("Icons", "Meat"), 6 },
    { QT_TRANSLATE_NOOP("Icons", "Fish"), 16 },
    { QT_TRANSLATE_NOOP("Icons", "Milk"), 23 },
    { QT_TRANSLATE_NOOP("Icons", "Bottle"), 15 },
    { QT_TRANSLATE_NOOP("Icons", "Wine"), 30 },
    { QT_TRANSLATE_NOOP("Icons", "Coffee"), 13 },
    { QT_TRANSLATE_NOOP("Icons", "Baby bottle"), 23 },
    { QT_TRANSLATE_NOOP("Icons", "Pills"), 6 },
    { QT_TRANSLATE_NOOP("Icons", "First aid"), 6 },
    { QT_TRANSLATE_NOOP("Icons", "Cosmetics"), 30 },
    { QT_TRANSLATE_NOOP("Icons", "Cleaning spray"), 16 },
    { QT_TRANSLATE_NOOP("Icons", "Shirt"), 2 },
    { QT_TRANSLATE_NOOP("Icons", "Shoe"), 13 },
    { QT_TRANSLATE_NOOP("Icons", "Jewel"), 28 },
    { QT_TRANSLATE_NOOP("Icons", "Watch"), 33 },
    { QT_TRANSLATE_NOOP("Icons", "Coins"), 17 },
    { QT_TRANSLATE_NOOP("Icons", "Stamp"), 6 },
    { QT_TRANSLATE_NOOP("Icons", "Book"), 2 },
    { QT_TRANSLATE_NOOP("Icons", "Disc"), 23 },
    { QT_TRANSLATE_NOOP("Icons", "Film"), 33 },
    { QT_TRANSLATE_NOOP("Icons", "Game pad"), 28 },
    { QT_TRANSLATE_NOOP("Icons", "Puzzle"), 15 },
    { QT_TRANSLATE_NOOP("Icons", "Camera"), 33 },
    { QT_TRANSLATE_NOOP("Icons", "Computer"), 2 },
    { QT_TRANSLATE_NOOP("Icons", "Phone"), 2 },
    { QT_TRANSLATE_NOOP("Icons", "Battery"), 15 },
    { QT_TRANSLATE_NOOP("Icons", "Plug"), 33 },
    { QT_TRANSLATE_NOOP("Icons", "Bulb"), 17 },
    { QT_TRANSLATE_NOOP("Icons", "Hammer"), 13 },
    { QT_TRANSLATE_NOOP("Icons", "Screw"), 33 },
    { QT_TRANSLATE_NOOP("Icons", "Paint"), 28 },
    { QT_TRANSLATE_NOOP("Icons", "Plant"), 15 },
    { QT_TRANSLATE_NOOP("Icons", "Paw"), 13 },
    { QT_TRANSLATE_NOOP("Icons", "Car"), 15 },
    { QT_TRANSLATE_NOOP("Icons", "Key"), 17 },
} };

/// A drawing that is sharp at every scale; one of one colour follows the palette, selection and
/// disabling.
class DrawnIcon : public QIconEngine
{
public:
    /// The colour of the drawing where it is neither selected nor disabled; none for a drawing in
    /// colours of its own.
    using Ink = std::function<QColor(const QPalette&)>;

    DrawnIcon(QString path, Ink ink)
        : m_path(std::move(path))
        , m_ink(std::move(ink))
    { }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal scale = painter->device()->devicePixelRatio();
        QPixmap picture = Draw(rect.size() * scale, mode);
        picture.setDevicePixelRatio(scale);
        painter->drawPixmap(rect.topLeft(), picture);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        return Draw(size, mode);
    }
    [[nodiscard]] QIconEngine* clone() const override { return new DrawnIcon(m_path, m_ink); }

private:
    QString m_path;
    Ink m_ink;

    [[nodiscard]] QColor Colour(QIcon::Mode mode) const
    {
        const QPalette palette = QGuiApplication::palette();
        switch (mode) {
        case QIcon::Selected:
            return palette.color(QPalette::HighlightedText);
        case QIcon::Disabled:
            return palette.color(QPalette::Disabled, QPalette::Text);
        case QIcon::Normal:
        case QIcon::Active:
            break;
        }
        return m_ink(palette);
    }

    [[nodiscard]] QPixmap Draw(const QSize& size, QIcon::Mode mode) const
    {
        const QColor colour = m_ink ? Colour(mode) : QColor();
        const QString key
            = u"%1 %2 %3 %4"_s.arg(m_path, colour.name()).arg(size.width()).arg(size.height());
        QPixmap picture;
        if (QPixmapCache::find(key, &picture))
            return picture;
        picture = QPixmap(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        QSvgRenderer(m_path).render(&painter);
        if (m_ink) {
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(picture.rect(), colour);
        }
        painter.end();
        QPixmapCache::insert(key, picture);
        return picture;
    }
};

} // namespace

QIcon ListIcon(int index)
{
    const quint32 colour = kListIcons.at(static_cast<size_t>(KnownIcon(index))).colour;
    return QIcon(new DrawnIcon(ListIconFile(index), [colour](const QPalette& palette) {
        return IsDark(palette) ? palette.color(QPalette::Text) : PaletteColour(colour);
    }));
}

QString ListIconName(int index)
{
    return QCoreApplication::translate(
        "Icons", kListIcons.at(static_cast<size_t>(KnownIcon(index))).name);
}

QIcon CheckboxIcon(bool isChecked)
{
    LoadIconResources();
    return QIcon(
        new DrawnIcon(isChecked ? u":/icons/box_checked.svg"_s : u":/icons/box_empty.svg"_s,
            [isChecked](const QPalette& palette) {
                return isChecked ? AccentInk(palette) : palette.color(QPalette::PlaceholderText);
            }));
}

QIcon ApplicationIcon()
{
    LoadIconResources();
    // Drawn here: what draws files for the toolkit is not installed everywhere.
    return QIcon(new DrawnIcon(u":/icons/application.svg"_s, {}));
}

} // namespace Quillory

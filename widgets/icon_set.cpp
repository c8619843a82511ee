#include "widgets/icon_set.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

// Resources of a static library are not found unless somebody asks for them by name.
static void LoadIconResources()
{
    Q_INIT_RESOURCE(icons);
}

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

QString ListIconPath(int index)
{
    const QString path = u":/icons/list_%1.svg"_s.arg(index, 2, 10, QLatin1Char('0'));
    return QFile::exists(path) ? path : u":/icons/list_00.svg"_s;
}

/// A drawing of one colour, that of the text around it: it follows the palette, selection and
/// disabling at every scale.
class DrawnIcon : public QIconEngine
{
public:
    explicit DrawnIcon(QString path)
        : m_path(std::move(path))
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
    [[nodiscard]] QIconEngine* clone() const override { return new DrawnIcon(m_path); }

private:
    QString m_path;

    static QColor Colour(QIcon::Mode mode)
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
        return palette.color(QPalette::Text);
    }

    [[nodiscard]] QPixmap Draw(const QSize& size, QIcon::Mode mode) const
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        QSvgRenderer(m_path).render(&painter);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), Colour(mode));
        return picture;
    }
};

} // namespace

QIcon ListIcon(int index)
{
    LoadIconResources();
    const bool isKnown = index >= 0 && index < kListIconCount;
    return QIcon(new DrawnIcon(ListIconPath(isKnown ? index : 0)));
}

QIcon CheckboxIcon(bool isChecked)
{
    LoadIconResources();
    return QIcon(
        new DrawnIcon(isChecked ? u":/icons/box_checked.svg"_s : u":/icons/box_empty.svg"_s));
}

QIcon ApplicationIcon()
{
    LoadIconResources();
    return QIcon(u":/icons/application.svg"_s);
}

} // namespace Quillory

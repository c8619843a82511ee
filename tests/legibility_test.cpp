// SPDX-License-Identifier: MIT
#include "desktop/desktop_look.h"
#include "rows/row_look.h"
#include "tests/every_page.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "widgets/app_style.h"
#include "widgets/colour_palette.h"
#include "widgets/ink.h"
#include "widgets/window_style.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>
#include <QTabBar>

#include <algorithm>

namespace {

/// As desktops have them; the shades of a button are the toolkit's.
QPalette DesktopPalette(const QStringList& colours)
{
    QPalette palette { QColor(colours[0]), QColor(colours[1]) };
    constexpr QPalette::ColorRole kRoles[] { QPalette::Button, QPalette::Window,
        QPalette::WindowText, QPalette::ButtonText, QPalette::Base, QPalette::Text,
        QPalette::Highlight, QPalette::HighlightedText, QPalette::PlaceholderText };
    for (qsizetype i = 0; i < colours.size() - 1; ++i)
        palette.setColor(kRoles[i], QColor(colours[i]));
    for (const auto role : { QPalette::WindowText, QPalette::ButtonText, QPalette::Text })
        palette.setColor(QPalette::Disabled, role, QColor(colours.last()));
    AppStyle().polish(palette);
    return palette;
}

/// The contrast of what is written in a place of a picture: of the colour that is farthest from the
/// most frequent one.
double ContrastSeen(const QImage& picture)
{
    QHash<QRgb, int> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++colours[picture.pixel(x, y)];
    }
    const QList<QRgb> all = colours.keys();
    const QColor ground(*std::max_element(
        all.begin(), all.end(), [&](QRgb a, QRgb b) { return colours[a] < colours[b]; }));
    double seen = 1;
    for (const QRgb colour : all)
        seen = std::max(seen, Contrast(QColor(colour), ground));
    return seen;
}

bool IsWritten(const QWidget& widget)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    const bool hasText = (label != nullptr && !label->text().isEmpty())
        || (button != nullptr && button->text().size() > 1
            && !button->inherits("Quillory::ColourButton"));
    const auto* edit = qobject_cast<const QLineEdit*>(&widget);
    return widget.isVisible()
        && (hasText || (edit != nullptr && !edit->text().isEmpty())
            || qobject_cast<const QHeaderView*>(&widget) || qobject_cast<const QTabBar*>(&widget));
}

} // namespace

class LegibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextOfAPageCanBeRead_data()
    {
        const Table<QPalette> add;
        add("light", PaletteOf(ColourScheme::Light));
        add("dark", PaletteOf(ColourScheme::Dark));
        add("light, high contrast", PaletteOf(ColourScheme::Light, true));
        add("dark, high contrast", PaletteOf(ColourScheme::Dark, true));
        add("a light desktop",
            DesktopPalette({ u"#fcfcfc"_s, u"#eff0f1"_s, u"#232629"_s, u"#232629"_s, u"#ffffff"_s,
                u"#232629"_s, u"#3daee9"_s, u"#ffffff"_s, u"#a0a4a8"_s, u"#b0b1b2"_s }));
        add("a dark desktop",
            DesktopPalette({ u"#353535"_s, u"#353535"_s, u"#eeeeec"_s, u"#eeeeec"_s, u"#2d2d2d"_s,
                u"#ffffff"_s, u"#15539e"_s, u"#ffffff"_s, u"#7f7f7f"_s, u"#666666"_s }));
        add("a black desktop of high contrast",
            DesktopPalette({ u"#000000"_s, u"#000000"_s, u"#ffffff"_s, u"#ffffff"_s, u"#000000"_s,
                u"#ffffff"_s, u"#ffff00"_s, u"#000000"_s, u"#303030"_s, u"#202020"_s }));
    }

    void everyTextOfAPageCanBeRead()
    {
        const auto [palette] = Table<QPalette>::Row();
        const auto restore
            = qScopeGuard([font = QApplication::font()] { QApplication::setFont(font); });
        // Strokes of several pixels have the very colour that they are drawn in.
        QApplication::setFont(QFont(QString(), 20, QFont::Bold));
        QApplication::setStyle(new AppStyle);
        QApplication::setPalette(palette);
        QStringList faint;
        for (const PageCase& page : kPages) {
            Subject subject;
            ApplyWindowStyle(&subject.stack);
            Show(subject, page);
            for (auto* view : subject.page->findChildren<QAbstractItemView*>()) {
                const QModelIndex first = view->model()->index(0, 0);
                if (first.data(Qt::DecorationRole).isNull())
                    continue;
                view->setCurrentIndex(first);
                const QRect icon(view->visualRect(first).topLeft(), QSize(30, 28));
                if (ContrastSeen(view->viewport()->grab(icon).toImage()) < kVisible)
                    QDebug(&faint.emplace_back()) << page.name << "icon";
            }
            for (auto* edit : subject.page->findChildren<QLineEdit*>())
                edit->selectAll();
            const QImage picture = subject.stack.grab().toImage();
            for (const QWidget* widget : subject.page->findChildren<QWidget*>()) {
                if (!IsWritten(*widget))
                    continue;
                const QRect place(widget->mapTo(&subject.stack, QPoint()), widget->size());
                const double seen = ContrastSeen(picture.copy(place & picture.rect()));
                if (seen < kReadable)
                    QDebug(&faint.emplace_back()) << page.name << widget->metaObject()->className()
                                                  << widget->objectName() << seen;
            }
        }
        QVERIFY2(faint.isEmpty(), qPrintable(u'\n' + faint.join(u'\n')));
    }

    void whatHasTheKeyboardHasARing_data() { everyTextOfAPageCanBeRead_data(); }

    void whatHasTheKeyboardHasARing()
    {
        const auto [palette] = Table<QPalette>::Row();
        QApplication::setStyle(new AppStyle);
        QApplication::setPalette(palette);
        const QRgb accent = AccentInk(palette).rgb();
        constexpr int kLeast = 90;
        QStringList missing;
        for (const PageCase& page : kPages) {
            Subject subject;
            ApplyWindowStyle(&subject.stack);
            Show(subject, page);
            for (QWidget* widget : subject.page->findChildren<QWidget*>()) {
                if ((widget->focusPolicy() & Qt::TabFocus) == 0 || !widget->isVisible()
                    || !widget->isEnabled() || widget->focusProxy() != nullptr)
                    continue;
                widget->clearFocus();
                const QImage before = subject.stack.grab().toImage();
                widget->setFocus(Qt::TabFocusReason);
                const QImage now = subject.stack.grab().toImage();
                int ring = 0;
                for (int y = 0; y < now.height(); ++y) {
                    for (int x = 0; x < now.width(); ++x)
                        // Where the ground has that colour the ring stands off it.
                        ring += before.pixel(x, y) != now.pixel(x, y)
                            && (now.pixel(x, y) == accent || before.pixel(x, y) == accent);
                }
                if (ring < kLeast)
                    QDebug(&missing.emplace_back())
                        << page.name << widget->metaObject()->className() << widget->objectName()
                        << ring;
            }
        }
        QVERIFY2(missing.isEmpty(), qPrintable(u'\n' + missing.join(u'\n')));
    }

    void lettersAreNeverTooSmall()
    {
        const auto restore
            = qScopeGuard([font = QApplication::font()] { QApplication::setFont(font); });
        QApplication::setStyle(new AppStyle);
        QWidget window;
        ApplyWindowStyle(&window);
        window.show();
        const auto isSizeAt = [](int points, int pixels) {
            QApplication::setFont(QFont(QString(), points));
            return QTest::qWaitFor(
                [&] { return QFontInfo(QApplication::font()).pixelSize() == pixels; }, 500);
        };
        QVERIFY(isSizeAt(7, 13));
        QVERIFY(isSizeAt(24, 32));
        QTest::createTouchDevice();
        for (const PageCase& page : kPages) {
            // Before anything of the program has enlarged it.
            QApplication::setFont(QFont(QString(), 7));
            Subject subject;
            Show(subject, page);
            ApplyWindowStyle(&subject.stack);
            const auto areLarge = [&subject] {
                const auto widgets = subject.page->findChildren<QWidget*>();
                return std::ranges::all_of(widgets, [](const QWidget* widget) {
                    const bool isList = qobject_cast<const QAbstractItemView*>(widget) != nullptr;
                    return (!isList && !IsWritten(*widget))
                        || QFontInfo(widget->font()).pixelSize() >= 15;
                });
            };
            QVERIFY2(QTest::qWaitFor(areLarge, 500), page.name);
        }
        QVERIFY(isSizeAt(7, 15));
        QVERIFY(isSizeAt(24, 32));
    }

    void everyRowCanBeRead_data() { everyTextOfAPageCanBeRead_data(); }

    void everyRowCanBeRead()
    {
        const auto [palette] = Table<QPalette>::Row();
        double text = 21;
        double line = 21;
        double kept = 21;
        const auto note = [](double& least, const QColor& ink, const QColor& ground) {
            least = std::min(least, Contrast(ink, ground));
        };
        for (const auto role : { QPalette::Base, QPalette::Window, QPalette::Button }) {
            note(line, OutlineColour(palette), palette.color(role));
            note(line, AccentInk(palette), palette.color(role));
        }
        for (quint32 colour = 0; colour < kColourCount; ++colour) {
            InventoryList list;
            list.TableWarnColour = colour;
            list.TableExpiryColour = colour;
            for (const int number : { 0, 1, 2, 3, 4 }) {
                const RowColours colours = ColoursFor(list, true, palette);
                RowFacts row { number % 2, number / 2 == 1, 0, {}, number == 4 };
                const RowLook plain = DecideRowLook(row, {}, colours);
                note(text, plain.text, plain.ground);
                note(line, palette.color(QPalette::PlaceholderText), colours.alternate.ground);
                note(line, AccentInk(palette), colours.alternate.ground);
                for (const RowWarnings warnings :
                    { RowWarnings { true, false }, { false, true } }) {
                    const RowLook look = DecideRowLook(row, warnings, colours);
                    note(text, look.mark, look.ground);
                    note(IsDark(palette) || row.isSelected ? text : kept, look.text, look.ground);
                    if (!IsDark(palette) && !row.isSelected)
                        QCOMPARE(look.text, PaletteColour(colour));
                }
            }
        }
        qInfo("least contrast: text %.2f, lines %.2f, colours kept as they are %.2f", text, line,
            kept);
        QVERIFY(text >= kReadable);
        QVERIFY(line >= kVisible);
    }
};

QUILLORY_TEST(QApplication, LegibilityTest)
#include "legibility_test.moc"

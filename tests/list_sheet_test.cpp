// SPDX-License-Identifier: MIT
#include "listdef/list_sheet.h"
#include "listdef/options_panel.h"
#include "tests/finger.h"
#include "tests/person.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "values/column_type.h"
#include "widgets/icon_grid.h"
#include "widgets/page_stack.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QTabBar>
#include <QTableView>

#include <memory>

class ListSheetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Open(SheetMode::NewList, NewInventoryList());
        Act(u"tap Columns"_s);
    }

    void aNewListHasNameAndQuantity()
    {
        QVERIFY(!m_page->HasUnsavedInput());
        Act(u"see Name, Quantity; tap General; fill listName: "_s + QString(200, u'n'));
        QVERIFY(m_page->HasUnsavedInput());
        const InventoryList list = m_page->Result();
        QCOMPARE(list.Name, QString(128, u'n'));
        QCOMPARE(list.columns[1].id, PropCount);
    }

    void columnsAreDefinedBeforeTheSelectedOne()
    {
        Act(u"tap Quantity; "_s + Define(u"Price"_s, u"Price"_s)
            + Define(QString(40, u'x'), u"Checkbox"_s));
        View()->clearSelection();
        Act(Define(u"Last"_s, u"Date"_s)
            + u"see Name, %1, Price, Quantity, Last"_s.arg(QString(32, u'x')));
        const auto columns = m_page->Result().columns;
        QCOMPARE(static_cast<quint32>(columns[1].id), 0x2714000BU);
        QCOMPARE(static_cast<quint32>(columns[2].id), 0x27150005U);
        QCOMPARE(static_cast<quint32>(columns[4].id), 0x27170040U);
    }

    void menusFollowTheColumns_data()
    {
        const Table<QString> add;
        const QString expiry = u"tap Menu; tap Add Expiry Date Column; "_s;
        add("an empty name inserts nothing",
            u"tap Insert; tap OK; tap Insert; press Esc; at New Inventory List; see Name, Quantity"_s);
        add("a type alone is not lost either",
            u"tap Insert; choose columnType: Price; press Esc; tap No; see columnType: Price"_s);
        add("the first, of one's own, and the built-in last",
            expiry
                + u"see Expiry Date, Name, Quantity; on Expiry Date; tap Menu; "
                  "see (Add Expiry Date Column), Rename, Delete, (Move Up), Move Down; "
                  "tap Move Down; see Name, Expiry Date, Quantity; tap Menu; "
                  "see (Add Expiry Date Column), Rename, Delete, Move Up, Move Down; press Esc; "
                  "tap Quantity; tap Menu; "
                  "see (Add Expiry Date Column), Rename, (Delete), Move Up, (Move Down)"_s);
        QString fourteen;
        for (int i = 2; i < 15; ++i)
            fourteen += Define(u"c"_s, u"String"_s);
        // It was inserted before the selected column, and is selected then. The tab makes its soft
        // keys anew.
        add("sixteen are the limit",
            fourteen + expiry + u"cannot Insert; tap Menu; tap Delete; "_s + expiry
                + u"tap Menu; tap Delete; "_s + Define(u"again"_s, u"String"_s)
                + u"cannot Insert; tap General; tap Columns; cannot Insert; tap Menu; "
                  "cannot Add Expiry Date Column"_s);
    }

    void menusFollowTheColumns()
    {
        const auto [steps] = Table<QString>::Row();
        Act(steps);
    }

    void nothingIsDoneToNoColumn()
    {
        View()->clearSelection();
        Act(u"tap Menu; "
            "see Add Expiry Date Column, (Rename), (Delete), (Move Up), (Move Down)"_s);
    }

    void aLowWindowHasNoRoomForTheNote()
    {
        const auto* note
            = View()->parentWidget()->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
        for (const bool isLow : { false, true, false }) {
            m_stack->resize(640, isLow ? 240 : 640);
            QTRY_COMPARE(note->isVisible(), !isLow);
        }
    }

    void columnsAreRenamedInPlace()
    {
        // All of the old name is selected.
        QGuiApplication::clipboard()->setText(u"in\tstock\r\nor not"_s);
        const QString name = u"in stock or not"_s + QString(17, u'x');
        Act(u"tap Quantity; tap Menu; tap Rename; press Ctrl+V; type %1; press Return; see Name, %2"_s
                .arg(QString(32, u'x'), name));
        QVERIFY(!View()->model()->setData(View()->model()->index(0, 0), QString(), Qt::EditRole));
        Act(u"see Name, "_s + name);
    }

    void keysChangeColumnsOnTheirPanelAlone()
    {
        Act(Define(u"Price"_s, u"Price"_s)
            + u"see Price, Name, Quantity; press Ctrl+Down Ctrl+Up Ctrl+Down; "
              "see Name, Price, Quantity; press Ctrl+Tab"_s);
        QTRY_VERIFY(Find<QWidget>(u"warnOnCount"_s)->hasFocus());
        Act(u"press Del Ctrl+Up Ctrl+Tab"_s);
        QTRY_VERIFY(Find<QWidget>(u"listName"_s)->hasFocus());
        Act(u"press Ctrl+Tab; see Name, Price, Quantity; "
            "press Del; see Name, Quantity"_s);
        // Keys that go through the tabs stay there.
        auto* tabs = Find<QTabBar>(u"tabs"_s);
        tabs->setFocus();
        Act(u"press Left Right Right"_s);
        QCOMPARE(tabs->currentIndex(), 2);
        Act(u"press Ctrl+Tab"_s);
        QCOMPARE(tabs->currentIndex(), 0);
        QVERIFY(tabs->hasFocus());
    }

    void tabReachesEveryControl_data()
    {
        const Table<QString, QStringList> add;
        add("General", u"General"_s, QStringList { u"listName"_s, u"listIcon"_s });
        add("Columns", u"Columns"_s, QStringList { u"columns"_s, u"rightKey"_s });
        add("Options", u"Options"_s, QStringList { u"warnOnCount"_s });
    }

    void tabReachesEveryControl()
    {
        const auto [panel, controls] = Table<QString, QStringList>::Row();
        Act(u"tap "_s + panel);
        QTRY_VERIFY(Find<QWidget>(u"leftKey"_s)->isVisible());
        QStringList reached;
        for (int i = 0; i < 12; ++i) {
            QTest::keyClick(m_stack->focusWidget(), Qt::Key_Tab);
            reached << m_stack->focusWidget()->objectName();
        }
        for (const QString& name :
            controls + QStringList { u"leftKey"_s, u"help"_s, u"ok"_s, u"tabs"_s })
            QVERIFY2(reached.contains(name), qPrintable(name + u" not in "_s + reached.join(u' ')));
    }

    void theExpiryDateTakesTheKindOfTheColumnBefore()
    {
        Act(u"tap Menu; tap Add Expiry Date Column"_s);
        QCOMPARE(m_page->Result().columns[0].kind, 0);
        Act(u"press Ctrl+Down"_s);
        QCOMPARE(m_page->Result().columns[1].kind, kKindName);
        View()->clearSelection();
        Act(Define(u"Price"_s, u"Price"_s));
        QCOMPARE(m_page->Result().columns[3].kind, 2);
        Act(u"tap Expiry Date; press Ctrl+Down Ctrl+Down"_s);
        QCOMPARE(m_page->Result().columns[3].kind, 2);
    }

    void theIconIsSteppedOrChosenInTheGrid()
    {
        const auto icon = [this] { return static_cast<int>(m_page->Result().TableIcon); };
        Act(u"tap General; tap previousIcon"_s);
        QCOMPARE(icon(), 42);
        Act(u"tap nextIcon"_s);
        QCOMPARE(icon(), 0);
        Act(u"press Space; at Icon; press Esc; tap allIcons"_s);
        auto* grid = m_stack->Top()->findChild<IconGrid*>();
        QVERIFY(grid != nullptr);
        QCOMPARE(grid->SelectedIcon(), 0);
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {},
            grid->visualRect(grid->model()->index(7, 0)).center());
        QCOMPARE(m_stack->Top(), m_page);
        QCOMPARE(icon(), 7);
        // The picture opens the grid, too. Cancelled, and after a tap on nothing, the old one
        // stays.
        Finger(*Find<QWidget>(u"listIcon"_s)).Tap({ 20, 20 });
        grid = m_stack->Top()->findChild<IconGrid*>();
        QVERIFY(grid != nullptr);
        const QRect last = grid->visualRect(grid->model()->index(42, 0));
        QTest::mouseClick(
            grid->viewport(), Qt::LeftButton, {}, last.center() + QPoint(last.width(), 0));
        QVERIFY(m_stack->Top() != m_page);
        Act(u"press Esc"_s);
        QCOMPARE(icon(), 7);
    }

    void warningsAreEnabledByTheirBoxes()
    {
        // Texts are as grey as what they belong to.
        const auto greyTexts = [this] {
            int count = 0;
            for (const QLabel* label : m_page->findChild<OptionsPanel*>()->findChildren<QLabel*>())
                count += label->isEnabled() ? 0 : 1;
            return count;
        };
        Act(u"tap Options; cannot countColour; cannot threshold; cannot warnOnExpiry"_s);
        QCOMPARE(greyTexts(), 2);
        Act(u"tap warnOnCount; tap threshold; tap countColour; tap colour7"_s);
        QCOMPARE(greyTexts(), 1);
        Act(u"tap Columns; tap Menu; tap Add Expiry Date Column; tap Options; "
            "cannot expiryColour"_s);
        QCOMPARE(greyTexts(), 0);
        Act(u"tap warnOnExpiry; tap expiryColour; press Esc; tap Columns; tap Menu; tap Delete; "
            "tap Options; cannot warnOnExpiry; cannot expiryColour; tap warnOnCount"_s);
        // What is greyed is kept all the same.
        const InventoryList list = m_page->Result();
        QCOMPARE(list.TableOption, kWarnOnExpiry);
        QCOMPARE(list.TableWarnColour, 7U);
        // Return is OK from a colour, too, which Space opens.
        Act(u"tap warnOnCount"_s);
        m_page->findChild<QWidget*>(u"countColour"_s)->setFocus();
        Act(u"press Return"_s);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    }

    void thresholdsAreReadAsNumbersAndStepped_data()
    {
        const Table<QString, QString, int> add;
        add("a number", u"12"_s, {}, 12);
        add("a negative one", u"-3"_s, {}, -3);
        add("nothing", QString(), {}, 0);
        add("a word", u"many"_s, {}, 0);
        add("a number and a word", u"4 or so"_s, {}, 4);
        add("the largest", u"2147483647"_s, {}, 2147483647);
        add("one too large", u"2147483648"_s, {}, 0);
        add("more than 16 characters", u"00000000000000123"_s, {}, 12);
        add("up to the limit, no further", u"32766"_s, u"press Up Up"_s, 32767);
        add("down to nothing", u"1"_s, u"press Down"_s, 0);
        add("up from the largest", u"2147483647"_s, u"press Up"_s, 32767);
        add("down from the smallest", u"-2147483648"_s, u"press Down"_s, -32767);
        add("by taps", u"5"_s, u"tap +; tap +; tap \u2212"_s, 6);
    }

    void thresholdsAreReadAsNumbersAndStepped()
    {
        const auto [typed, steps, threshold] = Table<QString, QString, int>::Row();
        Act(u"tap Options; tap warnOnCount; fill threshold: "_s + typed);
        if (!steps.isEmpty())
            Act(u"%1; see threshold: %2"_s.arg(steps).arg(threshold));
        QCOMPARE(m_page->Result().TableWarnStart, threshold);
    }

    void anExistingListKeepsItsColumnsAndAName()
    {
        InventoryList list = NewInventoryList();
        list.Name = u"Pantry"_s;
        list.columns.push_back({ u"Until"_s, kKindCount, PropExpiryDate });
        Open(SheetMode::ExistingList, list);
        QCOMPARE(m_page->Title(), u"Inventory List Options"_s);
        QVERIFY(View() == nullptr);
        Act(u"fill listName: ; tap Options; tap warnOnExpiry; tap warnOnExpiry"_s);
        QCOMPARE(m_page->Result().Name, u"Pantry"_s);
        QCOMPARE(m_page->Result().columns, list.columns);
    }

private:
    std::unique_ptr<PageStack> m_stack;
    ListSheet* m_page = nullptr;

    [[nodiscard]] QTableView* View() const { return m_page->findChild<QTableView*>(u"columns"_s); }
    template <typename T> [[nodiscard]] T* Find(const QString& name) const
    {
        return m_page->findChild<T*>(name);
    }
    void Open(SheetMode mode, const InventoryList& list)
    {
        m_stack = std::make_unique<PageStack>();
        m_stack->Push(new Page(QString()));
        m_page = new ListSheet(mode, list, list);
        m_stack->Push(m_page);
        m_stack->resize(360, 640);
        m_stack->show();
    }
    /// Steps to a new column of that name and type.
    static QString Define(const QString& name, const QString& type)
    {
        return u"tap Insert; type %1; choose columnType: %2; tap OK; "_s.arg(name, type);
    }
};

QUILLORY_TEST(QApplication, ListSheetTest)
#include "list_sheet_test.moc"

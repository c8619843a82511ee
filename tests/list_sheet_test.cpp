// SPDX-License-Identifier: MIT
#include "listdef/column_definition_page.h"
#include "listdef/column_table_model.h"
#include "listdef/list_sheet.h"
#include "listdef/options_panel.h"
#include "tests/finger.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "values/column_type.h"
#include "widgets/colour_button.h"
#include "widgets/icon_grid.h"
#include "widgets/page_stack.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
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
        ShowTab(u"Columns"_s);
    }

    void aNewListHasNameAndQuantity()
    {
        QVERIFY(!m_page->HasUnsavedInput());
        ShowTab(u"General"_s);
        QTest::keyClicks(Find<QLineEdit>(u"listName"_s), QString(200, u'n'));
        QVERIFY(m_page->HasUnsavedInput());
        const InventoryList list = m_page->Result();
        QCOMPARE(list.Name, QString(128, u'n'));
        QCOMPARE(Names(), u"Name|Quantity"_s);
        QCOMPARE(list.columns[1].id, PropCount);
    }

    void columnsAreDefinedBeforeTheSelectedOne()
    {
        Select(1);
        Define(u"Price"_s, 2);
        Define(QString(40, u'x'), 1);
        View()->clearSelection();
        Define(u"Last"_s, 4);
        const auto columns = m_page->Result().columns;
        QCOMPARE(Names(), u"Name|"_s + QString(32, u'x') + u"|Price|Quantity|Last"_s);
        QCOMPARE(static_cast<quint32>(columns[1].id), 0x2714000BU);
        QCOMPARE(static_cast<quint32>(columns[2].id), 0x27150005U);
        QCOMPARE(static_cast<quint32>(columns[4].id), 0x27170040U);
    }

    void anEmptyColumnNameInsertsNothing()
    {
        Define(QString(), 3);
        m_page->Trigger(Command::Insert);
        QTest::keyClick(m_stack->Top(), Qt::Key_Escape);
        QCOMPARE(m_stack->Top(), m_page);
        QCOMPARE(Names(), u"Name|Quantity"_s);
    }

    void sixteenColumnsAreTheLimit()
    {
        for (int i = 2; i < 15; ++i)
            Define(u"c"_s, 0);
        QVERIFY(IsEnabled(Command::Insert));
        m_page->Trigger(Command::AddExpiryDateColumn);
        QCOMPARE(m_page->Result().columns.size(), size_t { 16 });
        QVERIFY(!IsEnabled(Command::Insert));
        // It was inserted before the selected column, and is selected now.
        m_page->Trigger(Command::Delete);
        QCOMPARE(m_page->Result().columns.size(), size_t { 15 });
        QVERIFY(IsEnabled(Command::Insert) && IsEnabled(Command::AddExpiryDateColumn));
        Define(u"again"_s, 0);
        QVERIFY(!IsEnabled(Command::Insert) && !IsEnabled(Command::AddExpiryDateColumn));
        // The tab makes its soft keys anew.
        ShowTab(u"General"_s);
        ShowTab(u"Columns"_s);
        QTest::mouseClick(Find<QWidget>(u"leftKey"_s), Qt::LeftButton);
        QCOMPARE(m_stack->Top(), m_page);
        QVERIFY(!Find<QWidget>(u"leftKey"_s)->isEnabled());
    }

    void menuEntriesFollowTheSelection()
    {
        m_page->Trigger(Command::AddExpiryDateColumn);
        QCOMPARE(Names(), u"Expiry Date|Name|Quantity"_s);
        QVERIFY(!IsEnabled(Command::AddExpiryDateColumn));
        // First, built-in, last; then none.
        QVERIFY(IsEnabled(Command::Delete) && !IsEnabled(Command::MoveUp));
        m_page->Trigger(Command::MoveDown);
        QCOMPARE(Names(), u"Name|Expiry Date|Quantity"_s);
        QVERIFY(IsEnabled(Command::MoveUp) && IsEnabled(Command::MoveDown));
        Select(2);
        QVERIFY(!IsEnabled(Command::Delete) && !IsEnabled(Command::MoveDown));
        View()->clearSelection();
        Q_EMIT m_page->MenuAboutToOpen();
        for (const Command command :
            { Command::Rename, Command::Delete, Command::MoveUp, Command::MoveDown })
            QVERIFY(!IsEnabled(command));
    }

    void columnsAreRenamedInPlace()
    {
        Select(1);
        m_page->Trigger(Command::Rename);
        auto* editor = View()->viewport()->findChild<QLineEdit*>();
        QVERIFY(editor != nullptr);
        // All of the old name is selected.
        QGuiApplication::clipboard()->setText(u"in\tstock\r\nor not"_s);
        QTest::keySequence(editor, QKeySequence::Paste);
        QTest::keyClicks(editor, QString(32, u'x'));
        const QString name = u"in stock or not"_s + QString(17, u'x');
        QCOMPARE(editor->text(), name);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(Names(), u"Name|"_s + name);
        QVERIFY(!View()->model()->setData(View()->model()->index(0, 0), QString(), Qt::EditRole));
        QCOMPARE(Names(), u"Name|"_s + name);
    }

    void keysChangeColumnsOnTheirPanelAlone()
    {
        QVERIFY(QTest::qWaitForWindowActive(m_stack.get()));
        Define(u"Price"_s, 2);
        QCOMPARE(Names(), u"Price|Name|Quantity"_s);
        QTest::keyClick(View(), Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(Names(), u"Name|Price|Quantity"_s);
        QTest::keyClick(View(), Qt::Key_Tab, Qt::ControlModifier);
        auto* box = Find<QCheckBox>(u"warnOnCount"_s);
        QTRY_VERIFY(box->hasFocus());
        QTest::keyClick(box, Qt::Key_Delete);
        QTest::keyClick(box, Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(Names(), u"Name|Price|Quantity"_s);
        ShowTab(u"Columns"_s);
        QTest::keyClick(View(), Qt::Key_Delete);
        QCOMPARE(Names(), u"Name|Quantity"_s);
        // Keys that go through the tabs stay there.
        auto* tabs = Find<QTabBar>(u"tabs"_s);
        tabs->setFocus();
        for (const auto key : { Qt::Key_Left, Qt::Key_Right, Qt::Key_Right })
            QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(tabs->currentIndex(), 2);
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
        QVERIFY(QTest::qWaitForWindowActive(m_stack.get()));
        ShowTab(panel);
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
        m_page->Trigger(Command::AddExpiryDateColumn);
        QCOMPARE(m_page->Result().columns[0].kind, 0);
        m_page->Trigger(Command::MoveDown);
        QCOMPARE(m_page->Result().columns[1].kind, kKindName);
        View()->clearSelection();
        Define(u"Price"_s, 2);
        QCOMPARE(m_page->Result().columns[3].kind, 2);
        Select(1);
        m_page->Trigger(Command::MoveDown);
        m_page->Trigger(Command::MoveDown);
        QCOMPARE(m_page->Result().columns[3].kind, 2);
    }

    void theIconIsSteppedOrChosenInTheGrid()
    {
        ShowTab(u"General"_s);
        const auto icon = [this] { return static_cast<int>(m_page->Result().TableIcon); };
        QTest::mouseClick(Find<QWidget>(u"previousIcon"_s), Qt::LeftButton);
        QCOMPARE(icon(), 42);
        QTest::mouseClick(Find<QWidget>(u"nextIcon"_s), Qt::LeftButton);
        QCOMPARE(icon(), 0);
        QTest::mouseClick(Find<QWidget>(u"allIcons"_s), Qt::LeftButton);
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
        QTest::keyClick(m_stack->Top(), Qt::Key_Escape);
        QCOMPARE(icon(), 7);
    }

    void warningsAreEnabledByTheirBoxes()
    {
        ShowTab(u"Options"_s);
        // Texts are as grey as what they belong to.
        const auto greyTexts = [this] {
            int count = 0;
            for (const QLabel* label : m_page->findChild<OptionsPanel*>()->findChildren<QLabel*>())
                count += label->isEnabled() ? 0 : 1;
            return count;
        };
        QCOMPARE(greyTexts(), 2);
        auto* onCount = Find<QCheckBox>(u"warnOnCount"_s);
        auto* onExpiry = Find<QCheckBox>(u"warnOnExpiry"_s);
        auto* countColour = Find<ColourButton>(u"countColour"_s);
        QVERIFY(!countColour->isEnabled() && !Find<QWidget>(u"threshold"_s)->isEnabled());
        QVERIFY(!onExpiry->isEnabled());
        onCount->click();
        QVERIFY(countColour->isEnabled() && Find<QWidget>(u"threshold"_s)->isEnabled());
        QCOMPARE(greyTexts(), 1);
        ShowTab(u"Columns"_s);
        m_page->Trigger(Command::AddExpiryDateColumn);
        ShowTab(u"Options"_s);
        QVERIFY(onExpiry->isEnabled() && !Find<QWidget>(u"expiryColour"_s)->isEnabled());
        QCOMPARE(greyTexts(), 0);
        onExpiry->click();
        QVERIFY(Find<QWidget>(u"expiryColour"_s)->isEnabled());
        countColour->SetColour(7);
        ShowTab(u"Columns"_s);
        m_page->Trigger(Command::Delete);
        ShowTab(u"Options"_s);
        QVERIFY(!onExpiry->isEnabled() && !Find<QWidget>(u"expiryColour"_s)->isEnabled());
        onCount->click();
        // What is greyed is kept all the same.
        const InventoryList list = m_page->Result();
        QCOMPARE(list.TableOption, kWarnOnExpiry);
        QCOMPARE(list.TableWarnColour, 7U);
    }

    void thresholdsAreReadAsNumbersAndStepped_data()
    {
        const Table<QString, QList<Qt::Key>, int> add;
        add("a number", u"12"_s, {}, 12);
        add("a negative one", u"-3"_s, {}, -3);
        add("nothing", QString(), {}, 0);
        add("a word", u"many"_s, {}, 0);
        add("a number and a word", u"4 or so"_s, {}, 4);
        add("the largest", u"2147483647"_s, {}, 2147483647);
        add("one too large", u"2147483648"_s, {}, 0);
        add("more than 16 characters", u"00000000000000123"_s, {}, 12);
        add("up to the limit, no further", u"32766"_s, { Qt::Key_Up, Qt::Key_Up }, 32767);
        add("down to nothing", u"1"_s, { Qt::Key_Down }, 0);
        add("up from the largest", u"2147483647"_s, { Qt::Key_Up }, 32767);
        add("down from the smallest", u"-2147483648"_s, { Qt::Key_Down }, -32767);
    }

    void thresholdsAreReadAsNumbersAndStepped()
    {
        const auto [typed, keys, threshold] = Table<QString, QList<Qt::Key>, int>::Row();
        ShowTab(u"Options"_s);
        Find<QCheckBox>(u"warnOnCount"_s)->click();
        auto* edit = Find<QLineEdit>(u"threshold"_s);
        edit->clear();
        QTest::keyClicks(edit, typed);
        for (const Qt::Key key : keys)
            QTest::keyClick(edit, key);
        QCOMPARE(m_page->Result().TableWarnStart, threshold);
        QVERIFY(keys.isEmpty() || edit->text() == QString::number(threshold));
    }

    void anExistingListKeepsItsColumnsAndAName()
    {
        InventoryList list = NewInventoryList();
        list.Name = u"Pantry"_s;
        list.columns.push_back({ u"Until"_s, kKindCount, PropExpiryDate });
        Open(SheetMode::ExistingList, list);
        QCOMPARE(m_page->Title(), u"Inventory List Options"_s);
        QVERIFY(View() == nullptr);
        Find<QLineEdit>(u"listName"_s)->clear();
        ShowTab(u"Options"_s);
        QVERIFY(Find<QWidget>(u"warnOnExpiry"_s)->isEnabled());
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
    void ShowTab(const QString& title) const
    {
        auto* tabs = m_page->findChild<QTabBar*>();
        for (int i = 0; i < tabs->count(); ++i) {
            if (tabs->tabText(i) == title)
                QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(i).center());
        }
        QCOMPARE(tabs->tabText(tabs->currentIndex()), title);
    }
    void Select(int row) const { View()->setCurrentIndex(View()->model()->index(row, 0)); }
    [[nodiscard]] bool IsEnabled(Command command) const
    {
        return m_page->ActionOf(command)->isEnabled();
    }
    void Define(const QString& name, int type)
    {
        m_page->Trigger(Command::Insert);
        auto* page = qobject_cast<ColumnDefinitionPage*>(m_stack->Top());
        QVERIFY(page != nullptr);
        QTest::keyClicks(page->findChild<QLineEdit*>(), name);
        page->findChild<QComboBox*>()->setCurrentIndex(type);
        QTest::mouseClick(page->findChild<QWidget*>(u"ok"_s), Qt::LeftButton);
    }
    [[nodiscard]] QString Names() const
    {
        QStringList names;
        for (const ColumnDefinition& column : m_page->Result().columns)
            names << column.name;
        return names.join(u'|');
    }
};

QUILLORY_TEST(QApplication, ListSheetTest)
#include "list_sheet_test.moc"

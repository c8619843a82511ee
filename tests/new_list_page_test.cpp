#include "listdef/column_definition_page.h"
#include "listdef/column_table_model.h"
#include "listdef/new_list_page.h"
#include "values/column_type.h"
#include "widgets/page_stack.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

using namespace Quillory;
using namespace Qt::StringLiterals;

class NewListPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aNewListHasNameAndQuantity();
    void columnsAreDefinedBeforeTheSelectedOne();
    void anEmptyColumnNameInsertsNothing();
    void sixteenColumnsAreTheLimit();
    void menuEntriesFollowTheSelection();
    void columnsAreRenamedInPlace();
    void theExpiryDateTakesTheKindOfTheColumnBefore();

private:
    std::unique_ptr<PageStack> m_stack;
    NewListPage* m_page = nullptr;

    [[nodiscard]] QTableView* View() const { return m_page->findChild<QTableView*>(); }
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

void NewListPageTest::init()
{
    m_stack = std::make_unique<PageStack>();
    m_stack->Push(new Page(QString()));
    m_page = new NewListPage;
    m_stack->Push(m_page);
    m_stack->show();
}

void NewListPageTest::aNewListHasNameAndQuantity()
{
    QTest::keyClicks(m_page->findChild<QLineEdit*>(u"listName"_s), QString(200, u'n'));
    m_page->findChild<QComboBox*>(u"listIcon"_s)->setCurrentIndex(42);
    const InventoryList list = m_page->Result();
    QCOMPARE(list.Name, QString(128, u'n'));
    QCOMPARE(list.TableIcon, qint16 { 42 });
    QCOMPARE(Names(), u"Name|Quantity"_s);
    QCOMPARE(list.columns[1].id, PropCount);
}

void NewListPageTest::columnsAreDefinedBeforeTheSelectedOne()
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

void NewListPageTest::anEmptyColumnNameInsertsNothing()
{
    Define(QString(), 3);
    m_page->Trigger(Command::Insert);
    QTest::keyClicks(m_stack->Top()->findChild<QLineEdit*>(), u"left"_s);
    QTest::keyClick(m_stack->Top(), Qt::Key_Escape);
    QCOMPARE(m_stack->Top(), m_page);
    QCOMPARE(Names(), u"Name|Quantity"_s);
}

void NewListPageTest::sixteenColumnsAreTheLimit()
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
}

void NewListPageTest::menuEntriesFollowTheSelection()
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

void NewListPageTest::columnsAreRenamedInPlace()
{
    Select(1);
    m_page->Trigger(Command::Rename);
    auto* editor = View()->viewport()->findChild<QLineEdit*>();
    QVERIFY(editor != nullptr);
    editor->setText(u"Stock"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(Names(), u"Name|Stock"_s);
    QVERIFY(!View()->model()->setData(View()->model()->index(0, 0), QString(), Qt::EditRole));
    QCOMPARE(Names(), u"Name|Stock"_s);
}

void NewListPageTest::theExpiryDateTakesTheKindOfTheColumnBefore()
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

QTEST_MAIN(NewListPageTest)
#include "new_list_page_test.moc"

#include "rows/row_delegate.h"
#include "rows/rows_view.h"
#include "tests/list_fixture.h"
#include "values/file_date.h"
#include "widgets/colour_palette.h"
#include "widgets/page_stack.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTest>

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

/// Columns of the fixture's list.
enum Column
{
    Name,
    Count,
    Shelf,
    Bio,
    Price,
    Size,
    Bought,
    Expiry,
};

} // namespace

class RowsViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theFirstLineIsSelected();
    void aNewRowIsEnteredByKeyboard();
    void cancellingTheEditorWritesNothing();
    void modifyingKeepsWhatWasNotTouched();
    void countsGoToMinusOneAndBack();
    void deletingAsksWithNoAsDefault();
    void aCopyOpensInTheEditor();
    void ticksAreTappedInTheirSquareAlone();
    void aDoubleTapTicksTheOnlyCheckbox();
    void aTapOnTheHeaderSorts();
    void readOnlyLetsNothingChange();
    void widthsAndOrderAreKept();
    void aVanishedRowShowsErr();
    void looksFollowWarnings_data();
    void looksFollowWarnings();

private:
    std::unique_ptr<ListFixture> m_file;
    std::unique_ptr<PageStack> m_stack;
    RowsView* m_page = nullptr;

    void OpenView(const RowsViewOptions& options = {})
    {
        m_stack = std::make_unique<PageStack>();
        m_stack->Push(new Page(QString()));
        m_page = new RowsView(*m_file->rows, m_file->list, m_file->context, options);
        m_stack->Push(m_page);
        m_stack->resize(800, 480);
        m_stack->show();
        // Shortcuts are the active window's.
        QVERIFY(QTest::qWaitForWindowActive(m_stack.get()));
    }
    [[nodiscard]] QTableView* View() const { return m_page->findChild<QTableView*>(); }
    [[nodiscard]] QString Text(int line, int column) const
    {
        return View()->model()->index(line, column).data().toString();
    }
    [[nodiscard]] QString Lines() const
    {
        QStringList names;
        for (int line = 0; line < View()->model()->rowCount(); ++line)
            names << Text(line, Name);
        return names.join(u' ');
    }
    void Tap(int line, int column, const QPoint& offset = {}) const
    {
        const QRect cell = View()->visualRect(View()->model()->index(line, column));
        QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, cell.center() + offset);
    }
    /// Types over what the editor's current field holds, then a key.
    void TypeInEditor(const QString& text, Qt::Key key) const
    {
        QWidget* control = QApplication::focusWidget();
        QVERIFY(qobject_cast<QLineEdit*>(control) != nullptr);
        QTest::keyClicks(control, text);
        QTest::keyClick(control, key);
    }
    void Answer(QMessageBox::StandardButton button) const
    {
        auto* box = m_stack->findChild<QMessageBox*>();
        QVERIFY(box != nullptr);
        QVERIFY(box->defaultButton() == box->button(QMessageBox::No));
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    }
};

void RowsViewTest::init()
{
    m_stack.reset();
    m_file = std::make_unique<ListFixture>();
    m_file->MakeFullList(u"Pantry"_s);
    m_file->Add({ u"rice"_s, u"0"_s, u"top"_s, u"Unchecked"_s, u"3"_s });
    m_file->Add({ u"salt"_s, u"5"_s, u"top"_s, u"Checked"_s, u"1"_s });
}

void RowsViewTest::theFirstLineIsSelected()
{
    OpenView();
    QCOMPARE(m_page->Title(), u"Pantry"_s);
    QCOMPARE(Lines(), u"rice salt"_s);
    QCOMPARE(View()->currentIndex().row(), 0);
}

void RowsViewTest::aNewRowIsEnteredByKeyboard()
{
    OpenView();
    QTest::keyClick(m_page, Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(m_stack->Top()->objectName(), u"rowEditor"_s);
    TypeInEditor(u"barley"_s, Qt::Key_Return);
    TypeInEditor(u"7"_s, Qt::Key_Return);
    for (int field = Shelf; field < Expiry; ++field)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    TypeInEditor(u"1/5/2027"_s, Qt::Key_Return);
    QCOMPARE(m_stack->Top(), m_page);
    // At the end, until the list is opened again.
    QCOMPARE(Lines(), u"rice salt barley"_s);
    QCOMPARE(Text(2, Count), u"7"_s);
    QCOMPARE(Text(2, Expiry), u"1/5/2027"_s);
    QCOMPARE(m_file->Cells(m_file->rows->FillRows()), u"barley rice salt"_s);
}

void RowsViewTest::cancellingTheEditorWritesNothing()
{
    OpenView();
    m_page->Trigger(Command::Modify);
    TypeInEditor(u"changed"_s, Qt::Key_Down);
    m_stack->Top()->Trigger(Command::Cancel);
    m_page->Trigger(Command::New);
    QTest::keyClick(m_stack->Top(), Qt::Key_Escape);
    QCOMPARE(m_stack->Top(), m_page);
    QCOMPARE(m_file->Cells(m_file->rows->FillRows()), u"rice salt"_s);
}

void RowsViewTest::modifyingKeepsWhatWasNotTouched()
{
    OpenView();
    m_page->Trigger(Command::Modify);
    TypeInEditor(u"brown rice"_s, Qt::Key_Down);
    QTest::mouseClick(m_stack->Top()->findChild<QWidget*>(u"ok"_s), Qt::LeftButton);
    QCOMPARE(Lines(), u"brown rice salt"_s);
    QCOMPARE(Text(0, Price), u"3.00"_s);
    QCOMPARE(m_file->Cells(m_file->rows->FillRows(), Shelf), u"top top"_s);
}

void RowsViewTest::countsGoToMinusOneAndBack()
{
    OpenView();
    QTest::keyClick(View(), Qt::Key_Minus);
    QCOMPARE(Text(0, Count), u"-1"_s);
    QTest::keyClick(View(), Qt::Key_Plus);
    QTest::keyClick(View(), Qt::Key_Plus);
    QCOMPARE(Text(0, Count), u"1"_s);
    QCOMPARE(m_file->Cells(m_file->rows->FillRows(), Count), u"1 5"_s);
}

void RowsViewTest::deletingAsksWithNoAsDefault()
{
    OpenView();
    QTest::keyClick(View(), Qt::Key_Delete);
    Answer(QMessageBox::No);
    QCOMPARE(Lines(), u"rice salt"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_page->Trigger(Command::Delete);
    Answer(QMessageBox::Yes);
    QCOMPARE(Lines(), u"salt"_s);
    QCOMPARE(m_file->Cells(m_file->rows->FillRows()), u"salt"_s);
}

void RowsViewTest::aCopyOpensInTheEditor()
{
    OpenView();
    m_page->Trigger(Command::CreateCopy);
    QCOMPARE(m_stack->Top()->objectName(), u"rowEditor"_s);
    QTest::mouseClick(m_stack->Top()->findChild<QWidget*>(u"ok"_s), Qt::LeftButton);
    QCOMPARE(Lines(), u"rice salt rice"_s);
    QCOMPARE(View()->currentIndex().row(), 2);
}

void RowsViewTest::ticksAreTappedInTheirSquareAlone()
{
    OpenView();
    const auto isTicked = [this] {
        return View()->model()->index(0, Bio).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    };
    Tap(0, Bio, { 30, 0 });
    Tap(0, Name);
    QVERIFY(!isTicked());
    Tap(0, Bio);
    QVERIFY(isTicked());
    Tap(0, Bio);
    QVERIFY(!isTicked());
}

void RowsViewTest::aDoubleTapTicksTheOnlyCheckbox()
{
    OpenView();
    Tap(0, Shelf);
    const QRect cell = View()->visualRect(View()->model()->index(0, Shelf));
    QTest::mouseDClick(View()->viewport(), Qt::LeftButton, {}, cell.center());
    QCOMPARE(View()->model()->index(0, Bio).data(Qt::CheckStateRole).toInt(), int { Qt::Checked });
    QCOMPARE(m_stack->Top(), m_page);
}

void RowsViewTest::aTapOnTheHeaderSorts()
{
    OpenView();
    QHeaderView* header = View()->horizontalHeader();
    const QPoint place(header->sectionViewportPosition(Price) + 20, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(Lines(), u"salt rice"_s);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(Lines(), u"salt rice"_s);
    // The selection stays with its row.
    QCOMPARE(View()->currentIndex().row(), 1);
}

void RowsViewTest::readOnlyLetsNothingChange()
{
    OpenView({ .isReadOnly = true });
    for (const Command command : { Command::New, Command::Modify, Command::CreateCopy,
             Command::Delete, Command::AddOne, Command::SubtractOne })
        QVERIFY(!m_page->ActionOf(command)->isEnabled());
    QTest::keyClick(View(), Qt::Key_Plus);
    Tap(0, Bio);
    Tap(0, Name);
    const QRect cell = View()->visualRect(View()->model()->index(0, Name));
    QTest::mouseDClick(View()->viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseClick(View()->viewport(), Qt::RightButton, {}, cell.center());
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QCOMPARE(m_stack->Top(), m_page);
    QCOMPARE(m_file->Cells(m_file->rows->FillRows(), Count), u"0 5"_s);
}

void RowsViewTest::widthsAndOrderAreKept()
{
    OpenView();
    QHeaderView* header = View()->horizontalHeader();
    const int usualCount = header->sectionSize(Count);
    const int usualBio = header->sectionSize(Bio);
    header->resizeSection(Price, 123);
    header->moveSection(header->visualIndex(Price), 0);
    QTest::keyClick(m_page, Qt::Key_Escape);
    QCOMPARE(m_file->list.columnOrder, (std::vector<quint32> { 4, 0, 1, 2, 3, 5, 6, 7 }));
    QCOMPARE(m_file->list.TableColSizes.section(u',', Price, Price), u"123"_s);
    // Widths that are missing or absurd are the usual ones.
    m_file->list.TableColSizes = u"200,-5,x,99999999999,77"_s;
    OpenView();
    header = View()->horizontalHeader();
    QCOMPARE(header->sectionSize(Name), 200);
    QCOMPARE(header->sectionSize(Count), usualCount);
    QCOMPARE(header->sectionSize(Bio), usualBio);
    QCOMPARE(header->sectionSize(Price), 77);
    QCOMPARE(header->visualIndex(Price), 0);
}

void RowsViewTest::aVanishedRowShowsErr()
{
    OpenView();
    const ObjectId row = m_file->rows->FillRows().front();
    QVERIFY(m_file->rows->DeleteRow(row));
    QTest::keyClick(View(), Qt::Key_Plus);
    OpenView();
    RowsModel model(*m_file->rows, m_file->list, m_file->context);
    model.SetRows({ row });
    QCOMPARE(model.index(0, Price).data().toString(), u"<Err>"_s);
    QCOMPARE(model.FactsOf(0).count, 0);
}

void RowsViewTest::looksFollowWarnings_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("daysLeft");
    QTest::addColumn<bool>("isSelected");
    QTest::addColumn<int>("line");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<bool>("isItalic");
    const QColor low(212, 130, 0);
    const QColor expired(255, 0, 0);
    const QColor plain(Qt::black);
    const QColor white(Qt::white);
    QTest::newRow("one above the threshold") << 4 << 1 << false << 1 << plain << white << false;
    QTest::newRow("on the threshold") << 3 << 1 << false << 1 << low << white << false;
    QTest::newRow("expires today") << 4 << 0 << false << 1 << expired << white << false;
    QTest::newRow("low and expired") << -1 << -9 << false << 1 << expired << white << true;
    QTest::newRow("an even line") << 4 << 1 << false << 2 << plain << QColor(207, 217, 246)
                                  << false;
    QTest::newRow("selected") << 0 << -9 << true << 2 << QColor(Qt::yellow) << QColor(Qt::blue)
                              << true;
}

void RowsViewTest::looksFollowWarnings()
{
    QFETCH(int, count);
    QFETCH(int, daysLeft);
    QFETCH(bool, isSelected);
    QFETCH(int, line);
    InventoryList list;
    list.TableOption = kWarnOnCount | kWarnOnExpiry;
    list.TableWarnStart = 3;
    const QDate today(2026, 6, 15);
    const RowFacts row { line, isSelected, count, DateToFileTime(today.addDays(daysLeft)) };
    QPalette palette(Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, Qt::blue);
    palette.setColor(QPalette::HighlightedText, Qt::yellow);
    const RowLook look = DecideRowLook(row, list, *DateToFileTime(today), true, palette);
    QTEST(look.text, "text");
    QTEST(look.ground, "ground");
    QTEST(look.isItalic, "isItalic");
    list.TableOption = 0;
    const RowLook off = DecideRowLook(row, list, *DateToFileTime(today), false, palette);
    QCOMPARE(off.text, isSelected ? QColor(Qt::yellow) : QColor(Qt::black));
    QVERIFY(!off.isItalic);
}

QTEST_MAIN(RowsViewTest)
#include "rows_view_test.moc"

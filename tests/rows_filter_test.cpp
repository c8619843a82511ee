// SPDX-License-Identifier: MIT
#include "tests/rows_view_errand.h"
#include "tests/table.h"
#include "tests/test_program.h"

#include <QMessageBox>

/// Filters and Find of the rows view.
class RowsFilterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_errand = std::make_unique<RowsErrand>();
        const auto add = [this](const QString& name, const QString& count, const QString& bio,
                             const QString& price, const QString& bought) {
            m_errand->file.Add({ name, count, u"top"_s, bio, price, u"1"_s, bought, u""_s });
        };
        add(u"Rice"_s, u"3"_s, u"Checked"_s, u"0.1"_s, u"3/1/2026"_s);
        add(u"beans"_s, u"5"_s, u"Unchecked"_s, u"0.2"_s, u"3/2/2026"_s);
        add(u"rice flour"_s, u"5"_s, u"Checked"_s, u"0.3"_s, u""_s);
        m_errand->Open();
    }

    void onlyRowsThatPassAreSeen_data()
    {
        const Table<QString> add;
        const auto filter = [](const char* condition) {
            return u"tap Menu; tap Set Filters...; tap Add; %1; tap OK; tap OK; at Pantry; "_s.arg(
                QLatin1StringView(condition));
        };
        const QString bio = filter("choose fieldBox: Bio; choose checkboxValueBox: Unchecked");
        const QString checked = filter("choose fieldBox: Bio; choose checkboxValueBox: Checked");
        const QString clear = u"tap Menu; tap Clear Filters; "_s;
        add("a text", filter("fill valueEdit: ric") + u"see rice flour"_s);
        add("not equals to a number is equals to",
            filter("choose fieldBox: Quantity; choose conditionBox: not equals to; "
                   "fill valueEdit: 5")
                + u"see beans, rice flour"_s);
        add("a price", filter("choose fieldBox: Price; fill valueEdit: 0.1") + u"see Rice"_s);
        add("a price with a comma is 0",
            filter("choose fieldBox: Price; fill valueEdit: 0,1") + u"see nothing"_s);
        add("a checkbox",
            filter("choose fieldBox: Bio; choose conditionBox: not equals to; "
                   "choose checkboxValueBox: Checked")
                + u"see beans"_s);
        add("a date", filter("choose fieldBox: Bought; fill dateEdit: 3/1/2026") + u"see Rice"_s);
        add("no date fails every date",
            filter("choose fieldBox: Bought; choose conditionBox: not on; fill dateEdit: 3/1/2026")
                + u"see beans"_s);
        add("two, among which writing goes on",
            u"press Down; on beans; "_s
                + filter("choose fieldBox: Quantity; choose conditionBox: greater than; "
                         "fill valueEdit: 3")
                + bio + u"see beans; press +; see beans; "_s + clear
                + u"see Rice, beans, rice flour; see Quantity: 3, 6, 5; on beans"_s);
        add("a cancelled one hides every row, and Escape takes nothing back",
            u"tap Menu; tap Set Filters...; tap Add; press Esc Esc; at Pantry; see nothing; "
            "tap Menu; see (Modify...), (Create Copy), (Delete), View Summary..., Find..., "
            "Set Filters..., Clear Filters; press Esc; press Space Return; at Pantry"_s);
        add("clearing is offered while there are criteria",
            u"tap Menu; cannot Clear Filters; press Esc; tap Menu; tap Set Filters...; tap OK; "_s
                + clear + u"tap Menu; cannot Clear Filters"_s);
        add("the summary counts what is shown",
            checked + u"tap Menu; tap View Summary...; see Quantity|8, Price|0.40, Size|2"_s);
        add("Find searches a filtered list whole, and changes nothing",
            bio
                + u"press Ctrl+F; type i; tap OK; see Rice, rice flour; on Rice; "
                  "press Del + -; hold Rice; see Rice, rice flour; see Quantity: 3, 5; "
                  "press Esc; at Pantry; see beans"_s);
        add("what is changed among the results stays there and is seen below",
            u"see Quantity: 3, 5, 5; tap Menu; tap Find...; choose fieldBox: Quantity; "
            "choose conditionBox: equals to; fill valueEdit: 3; tap OK; press Space Return; "
            "press Down; type 9; press Down; tap OK; see Quantity: 9; "
            "tap OK; see Quantity: 9, 5, 5; see Bio: , , ticked; at Pantry"_s);
        add("Find without a match says so",
            u"tap Menu; tap Find...; at Find; choose conditionBox: equals to; fill valueEdit: tea; "
            "tap OK; see No record matched the criteria.; tap OK; at Pantry; "
            "see Rice, beans, rice flour"_s);
    }

    void onlyRowsThatPassAreSeen()
    {
        const auto [steps] = Table<QString>::Row();
        Act(steps);
    }

    void whatComesBackAndDoesNotPassIsNotSeen()
    {
        Act(u"tap Menu; tap Set Filters...; tap Add; fill valueEdit: bean; tap OK; tap OK; see beans"_s);
        m_errand->page->ShowRestored(m_errand->file.Add({ u"yeast"_s, u"1"_s }));
        Act(u"see beans; see filterText: 1 of 4 rows; tap Menu; tap Clear Filters; see Rice, beans, rice flour, yeast"_s);
    }

    void aCancelledFindMatchesNothing()
    {
        Act(u"tap Menu; tap Find...; press Esc; see No record matched the criteria."_s);
        const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QCOMPARE(box->icon(), QMessageBox::Information);
        QCOMPARE(m_errand->stack->Depth(), 3);
        Act(u"tap OK; at Pantry; see Rice, beans, rice flour"_s);
    }

    void totalsStandOnTheRight()
    {
        Act(u"tap Menu; tap View Summary..."_s);
        const QRect cell = m_errand->Cell(0, 1);
        const QImage image = m_errand->View()->viewport()->grab(cell).toImage();
        const QRect half(0, 0, cell.width() / 2, cell.height());
        // Nothing but the ground and the line below.
        QCOMPARE(image.copy(half), image.copy(0, 0, 1, cell.height()).scaled(half.size()));
        QVERIFY(image.copy(half) != image.copy(half.translated(half.width(), 0)));
    }

    void findKeepsTheColumnsAsTheyLie()
    {
        m_errand->View()->setColumnWidth(Count, 123);
        Act(u"press Ctrl+F; type i; tap OK; see Rice, rice flour"_s);
        QCOMPARE(m_errand->View()->columnWidth(Count), 123);
        for (const QString& command : { u"softKeys"_s, u"clearFilters"_s })
            QVERIFY(!m_errand->stack->Top()->findChild<QWidget*>(command)->isVisible());
    }

private:
    std::unique_ptr<RowsErrand> m_errand;
};

QUILLORY_TEST(QApplication, RowsFilterTest)
#include "rows_filter_test.moc"

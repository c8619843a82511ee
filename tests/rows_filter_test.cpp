// SPDX-License-Identifier: MIT
#include "tests/rows_view_errand.h"
#include "tests/test_program.h"

#include <QComboBox>
#include <QLineEdit>

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

    void aFilterNarrowsTheRows()
    {
        const std::array<QString, 4> cases[] { { u"Name"_s, u"contains"_s, u"ric"_s,
                                                   u"rice flour"_s },
            // It is equals to.
            { u"Quantity"_s, u"not equals to"_s, u"5"_s, u"beans rice flour"_s },
            { u"Price"_s, u"equals to"_s, u"0.1"_s, u"Rice"_s },
            // A price with a comma is 0.
            { u"Price"_s, u"equals to"_s, u"0,1"_s, u""_s },
            { u"Bio"_s, u"not equals to"_s, u"Checked"_s, u"beans"_s },
            { u"Bought"_s, u"on"_s, u"3/1/2026"_s, u"Rice"_s },
            // No date fails every date.
            { u"Bought"_s, u"not on"_s, u"3/1/2026"_s, u"beans"_s } };
        for (const auto& [field, condition, value, lines] : cases) {
            Filter(field, condition, value);
            QCOMPARE(m_errand->stack->Top(), m_errand->page);
            QCOMPARE(m_errand->Lines(), lines);
            QVERIFY(m_errand->Message() == nullptr);
            m_errand->page->Trigger(Command::ClearFilters);
        }
    }

    void filtersAreJoinedAndCleared()
    {
        m_errand->View()->selectRow(1);
        QCOMPARE(m_errand->Text(1, Name), u"beans"_s);
        Filter(u"Quantity"_s, u"greater than"_s, u"3"_s);
        Filter(u"Bio"_s, u"equals to"_s, u"Unchecked"_s);
        QCOMPARE(m_errand->Lines(), u"beans"_s);
        // Writing goes on among the filtered rows.
        QTest::keyClick(m_errand->View(), Qt::Key_Plus);
        // What comes back and does not pass is not seen.
        m_errand->page->ShowRestored(m_errand->file.Add({ u"yeast"_s, u"1"_s }));
        QCOMPARE(m_errand->Lines(), u"beans"_s);
        m_errand->page->Trigger(Command::ClearFilters);
        QCOMPARE(m_errand->Lines(), u"Rice beans rice flour yeast"_s);
        QCOMPARE(m_errand->View()->currentIndex().row(), 1);
        QCOMPARE(m_errand->Stored(Count), u"3 6 5 1"_s);
    }

    void addThenCancelHidesEveryRow()
    {
        m_errand->page->Trigger(Command::SetFilters);
        m_errand->stack->Top()->Trigger(Command::AddFilter);
        QTest::keyClick(m_errand->stack->Top(), Qt::Key_Escape);
        // Leaving the filters by Escape takes nothing back.
        QTest::keyClick(m_errand->stack->Top(), Qt::Key_Escape);
        QCOMPARE(m_errand->stack->Top(), m_errand->page);
        QCOMPARE(m_errand->Lines(), QString());
        for (const Command command : { Command::Modify, Command::CreateCopy, Command::Delete })
            QVERIFY(!m_errand->page->ActionOf(command)->isEnabled());
        QTest::keyClick(m_errand->View(), Qt::Key_Space);
        QTest::keyClick(m_errand->View(), Qt::Key_Return);
        QCOMPARE(m_errand->stack->Top(), m_errand->page);
    }

    void theSummaryCountsTheShownRows()
    {
        Filter(u"Bio"_s, u"equals to"_s, u"Checked"_s);
        m_errand->page->Trigger(Command::ViewSummary);
        QCOMPARE(m_errand->Lines(0), u"Quantity Price Size"_s);
        QCOMPARE(m_errand->Lines(1), u"8 0.40 2"_s);
        const QVariant side = m_errand->View()->model()->index(0, 1).data(Qt::TextAlignmentRole);
        QVERIFY(side.value<Qt::Alignment>().testFlag(Qt::AlignRight));
    }

    void clearIsOfferedWhileThereAreCriteria()
    {
        const auto isOffered
            = [this] { return m_errand->page->ActionOf(Command::ClearFilters)->isEnabled(); };
        Q_EMIT m_errand->page->MenuAboutToOpen();
        QVERIFY(!isOffered());
        m_errand->page->Trigger(Command::SetFilters);
        m_errand->PressOk();
        Q_EMIT m_errand->page->MenuAboutToOpen();
        QVERIFY(isOffered());
        m_errand->page->Trigger(Command::ClearFilters);
        Q_EMIT m_errand->page->MenuAboutToOpen();
        QVERIFY(!isOffered());
    }

    void findShowsWhatMatches()
    {
        // A list narrowed by filters is searched whole.
        Filter(u"Bio"_s, u"equals to"_s, u"Unchecked"_s);
        m_errand->View()->setColumnWidth(Count, 123);
        QTest::keyClick(m_errand->View(), Qt::Key_F, Qt::ControlModifier);
        Choose(u"Name"_s, u"contains"_s, u"i"_s);
        QVERIFY(m_errand->stack->Top() != m_errand->page);
        QCOMPARE(m_errand->Lines(), u"Rice rice flour"_s);
        QCOMPARE(m_errand->View()->columnWidth(Count), 123);
        QCOMPARE(m_errand->View()->currentIndex().row(), 0);
        QVERIFY(!m_errand->Find<QWidget>(QLatin1StringView("softKeys"))->isVisible());
        for (const auto key : { Qt::Key_Delete, Qt::Key_Plus, Qt::Key_Minus })
            QTest::keyClick(m_errand->View(), key);
        QTest::mouseClick(
            m_errand->View()->viewport(), Qt::RightButton, {}, m_errand->Cell(0, Name).center());
        QVERIFY(QApplication::activePopupWidget() == nullptr && m_errand->Message() == nullptr);
        QTest::keyClick(m_errand->View(), Qt::Key_Escape);
        QCOMPARE(m_errand->stack->Top(), m_errand->page);
        QCOMPARE(m_errand->Lines(), u"beans"_s);
        QCOMPARE(m_errand->Stored(Count), u"3 5 5"_s);
    }

    void whatIsChangedAmongTheResultsIsSeenBelow()
    {
        QCOMPARE(m_errand->Text(0, Count), u"3"_s);
        m_errand->page->Trigger(Command::Find);
        Choose(u"Quantity"_s, u"equals to"_s, u"3"_s);
        QTest::keyClick(m_errand->View(), Qt::Key_Space);
        QTest::keyClick(m_errand->View(), Qt::Key_Return);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        m_errand->TypeInEditor(u"9"_s, Qt::Key_Down);
        m_errand->PressOk();
        // It stays among the results although it no longer matches.
        QCOMPARE(m_errand->Lines(Count), u"9"_s);
        m_errand->PressOk();
        QCOMPARE(m_errand->Lines(Count), u"9 5 5"_s);
        QVERIFY(!m_errand->IsTicked(0));
    }

    void findWithoutAMatchSaysSo()
    {
        for (const bool isCancelled : { false, true }) {
            m_errand->page->Trigger(Command::Find);
            QCOMPARE(m_errand->stack->Top()->Title(), u"Find"_s);
            if (isCancelled)
                QTest::keyClick(m_errand->stack->Top(), Qt::Key_Escape);
            else
                Choose(u"Name"_s, u"equals to"_s, u"tea"_s);
            QTRY_VERIFY(m_errand->Message() != nullptr);
            QCOMPARE(m_errand->Message()->text(), u"No record matched the criteria."_s);
            QCOMPARE(m_errand->Message()->icon(), QMessageBox::Information);
            QCOMPARE(m_errand->stack->Depth(), 3);
            m_errand->Answer(QMessageBox::Ok);
            QCOMPARE(m_errand->stack->Top(), m_errand->page);
            QCOMPARE(m_errand->Lines(), u"Rice beans rice flour"_s);
        }
    }

private:
    std::unique_ptr<RowsErrand> m_errand;

    /// Fills in the condition page that is shown.
    void Choose(const QString& field, const QString& condition, const QString& value) const
    {
        m_errand->Find<QComboBox>(QLatin1StringView("fieldBox"))->setCurrentText(field);
        m_errand->Find<QComboBox>(QLatin1StringView("conditionBox"))->setCurrentText(condition);
        auto* edit = m_errand->Find<QLineEdit>(
            field == u"Bought" ? QLatin1StringView("dateEdit") : QLatin1StringView("valueEdit"));
        if (edit->isVisible())
            edit->setText(value);
        else
            m_errand->Find<QComboBox>(QLatin1StringView("checkboxValueBox"))->setCurrentText(value);
        m_errand->PressOk();
    }
    void Filter(const QString& field, const QString& condition, const QString& value) const
    {
        m_errand->page->Trigger(Command::SetFilters);
        m_errand->stack->Top()->Trigger(Command::AddFilter);
        Choose(field, condition, value);
        m_errand->PressOk();
    }
};

QUILLORY_TEST(QApplication, RowsFilterTest)
#include "rows_filter_test.moc"

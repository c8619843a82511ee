// SPDX-License-Identifier: MIT
#include "listdef/column_definition_page.h"
#include "listdef/display_options_page.h"
#include "listdef/list_sheet.h"
#include "rows/filter_page.h"
#include "rows/row_editor.h"
#include "tests/list_fixture.h"
#include "tests/person.h"
#include "tests/test_program.h"
#include "values/file_date.h"
#include "widgets/page_stack.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>

#include <limits>
#include <memory>
#include <utility>

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

const QString kOddText = u"tab\tand\r\nbreak "_s + QString(40'000, u'x');

/// A list whose every setting is one that no page would have given it.
InventoryList OddList()
{
    InventoryList list = NewInventoryList();
    list.Name = kOddText;
    list.TableIcon = 99;
    list.TableOption = 0xF3;
    list.TableWarnStart = std::numeric_limits<qint32>::min();
    list.TableWarnColour = 36;
    list.TableExpiryColour = 4'000'000'000;
    list.columns.push_back({ u"Until"_s, kKindCount, PropExpiryDate });
    return list;
}

struct ControlCase
{
    const char* control;
    /// What is done to it by keyboard.
    Qt::Key key;
    /// What becomes other of a list that warns of both, and of nothing else.
    void (*change)(InventoryList& list);
};

// The colours stand in the order of their values; a checkbox is ticked by Space.
constexpr ControlCase kControls[] {
    { "listName", Qt::Key_X, [](InventoryList& list) { list.Name += u'x'; } },
    { "listIcon", Qt::Key_Up, [](InventoryList& list) { list.TableIcon = 1; } },
    { "warnOnCount", Qt::Key_Space, [](InventoryList& list) { list.TableOption -= kWarnOnCount; } },
    { "warnOnExpiry", Qt::Key_Space,
        [](InventoryList& list) { list.TableOption -= kWarnOnExpiry; } },
    { "threshold", Qt::Key_Up, [](InventoryList& list) { list.TableWarnStart = 1; } },
    { "countColour", Qt::Key_Down, [](InventoryList& list) { list.TableWarnColour = 7; } },
    { "expiryColour", Qt::Key_Down, [](InventoryList& list) { list.TableExpiryColour = 7; } },
};

} // namespace

class FieldsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatNobodyTouchesStays();
    void anUntouchedRowKeepsItsTexts();
    void aControlChangesItsSettingAlone();
    void everyConditionIsGivenAsChosen();
    void pastedBreaksBecomeBlanks();

private:
    ValueContext m_context = TestContext();
    InventoryList m_list;
    std::unique_ptr<PageStack> m_stack;

    template <typename T> T* Open(T* page)
    {
        m_stack = std::make_unique<PageStack>();
        m_stack->Push(new Page(QString()));
        m_stack->Push(page);
        m_stack->resize(360, 640);
        m_stack->show();
        return page;
    }
    /// Whether a tap on OK ended the page; it can still be read then.
    bool TapOk() const
    {
        QTest::mouseClick(m_stack->Top()->findChild<QWidget*>(u"ok"_s), Qt::LeftButton);
        return m_stack->Depth() == 1;
    }
};

void FieldsTest::init()
{
    m_list = NewInventoryList();
    quint16 number = 10003;
    for (const auto type : { CEVT_LPWSTR, CEVT_BOOL, CEVT_R8, CEVT_I4, CEVT_FILETIME })
        m_list.columns.push_back({ u"own"_s, 0, MakePropertyId(number++, type) });
    m_list.columns.push_back({ u"Until"_s, 0, PropExpiryDate });
}

void FieldsTest::whatNobodyTouchesStays()
{
    const InventoryList list = OddList();
    for (const auto mode : { SheetMode::NewList, SheetMode::ExistingList }) {
        auto* page = Open(new ListSheet(mode, list, list));
        for (int tab = 0; tab < page->findChild<QTabBar*>()->count(); ++tab)
            QTest::keyClick(page->findChild<QTabBar*>(), Qt::Key_Right);
        QVERIFY(!page->HasUnsavedInput() && TapOk() && page->Result() == list);
    }
    for (int bits = 0; bits < 8; ++bits) {
        const DisplayOptions options { (bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0 };
        auto* page = Open(new DisplayOptionsPage(options));
        QVERIFY(!page->HasUnsavedInput() && TapOk() && page->Result() == options);
    }
}

void FieldsTest::anUntouchedRowKeepsItsTexts()
{
    constexpr std::numeric_limits<qint32> kRange;
    const auto day = [](int year) { return *DateToFileTime(QDate(year, 12, 31)); };
    const FileTime hour { day(2026).ticks + 36'000'000'000 };
    const auto& columns = m_list.columns;
    const auto make = [&columns](std::vector<PropertyVariant> values) {
        Record record;
        for (size_t i = 0; i < values.size(); ++i)
            record.values.push_back({ columns[i].id, 0, std::move(values[i]) });
        return record;
    };
    const Record records[] {
        make({}),
        make({ kOddText, kRange.min(), u"\n"_s, true, -0.001, kRange.max(), day(1601), hour }),
        make({ u" "_s, kRange.max(), u"Unchecked"_s, false, 123456789012345.678, -1, day(9999),
            day(9999) }),
        make({ u""_s, 0, u"\t"_s, true, 1e300, 0, day(1899), day(2026) }),
        make({ u"€"_s, 0, u"1"_s, true, std::numeric_limits<double>::infinity(), 0, hour, hour }),
    };
    for (const QString& locale : { u"en_US"_s, u"de_DE"_s }) {
        // Dates are written by one locale and read by the other.
        m_context.systemLocale = LocaleProfile::For(locale);
        for (const Record& record : records) {
            std::vector<QString> texts;
            texts.reserve(columns.size());
            for (const ColumnDefinition& column : columns)
                texts.push_back(
                    FormatEditText(FindProperty(record.values, column.id), column.id, m_context));
            auto* page = Open(new RowEditor(m_list, &record, m_context));
            Act(u"press Down Down Down Down Down Down Down Down"_s);
            QVERIFY(!page->HasUnsavedInput() && TapOk());
            QCOMPARE(page->Texts(), texts);
        }
    }
}

void FieldsTest::aControlChangesItsSettingAlone()
{
    m_list.Name = u"Pantry"_s;
    m_list.TableOption = kWarnOnCount | kWarnOnExpiry | 0x80;
    m_list.TableWarnColour = m_list.TableExpiryColour = 5;
    for (const ControlCase& asked : kControls) {
        auto* page = Open(new ListSheet(SheetMode::ExistingList, m_list, m_list));
        QTest::keyClick(page->findChild<QWidget*>(QLatin1StringView(asked.control)), asked.key);
        InventoryList expected = m_list;
        asked.change(expected);
        QVERIFY2(TapOk() && page->HasUnsavedInput() && page->Result() == expected, asked.control);
    }
}

void FieldsTest::everyConditionIsGivenAsChosen()
{
    for (const ColumnDefinition& column : m_list.columns) {
        int place = 0;
        for (const FilterCondition condition : ConditionsFor(column.id)) {
            auto* page = Open(new FilterPage({}, m_list, m_context));
            page->findChild<QComboBox*>(u"fieldBox"_s)
                ->setCurrentIndex(static_cast<int>(&column - m_list.columns.data()));
            page->findChild<QComboBox*>(u"conditionBox"_s)->setCurrentIndex(place++);
            QVERIFY(TapOk());
            QCOMPARE(page->State().entry.column, column.id);
            QCOMPARE(page->State().entry.condition, condition);
        }
    }
}

void FieldsTest::pastedBreaksBecomeBlanks()
{
    QGuiApplication::clipboard()->setText(u"a\tb\r\nc\nd"_s);
    const std::pair<Page*, QString> fields[] {
        { new RowEditor(m_list, nullptr, m_context), u"valueEdit"_s },
        { new FilterPage({}, m_list, m_context), u"valueEdit"_s },
        { new ListSheet(SheetMode::NewList, m_list, m_list), u"listName"_s },
        { new ColumnDefinitionPage, u"columnName"_s },
    };
    for (const auto& [page, field] : fields) {
        auto* edit = Open(page)->findChild<QLineEdit*>(field);
        QTest::keySequence(edit, QKeySequence::Paste);
        QTest::keyClick(edit, Qt::Key_E);
        QCOMPARE(edit->text(), u"a b c de"_s);
        QTest::keyClicks(edit, QString(200, u'x'));
        // All but the texts of rows have their length.
        const bool isText = qobject_cast<RowEditor*>(page) != nullptr;
        QCOMPARE(edit->text().size(), isText ? 208 : edit->maxLength());
    }
}

QUILLORY_TEST(QApplication, FieldsTest)
#include "fields_test.moc"

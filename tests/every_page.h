// SPDX-License-Identifier: MIT
#pragma once

#include "app/home_list.h"
#include "app/plain_pages.h"
#include "listdef/column_definition_page.h"
#include "listdef/display_options_page.h"
#include "listdef/import_order_page.h"
#include "listdef/list_sheet.h"
#include "rows/filter_page.h"
#include "rows/filters_page.h"
#include "rows/row_editor.h"
#include "rows/rows_view.h"
#include "rows/summary_page.h"
#include "tests/list_fixture.h"
#include "widgets/help_page.h"
#include "widgets/icon_grid_page.h"
#include "widgets/page_stack.h"

#include <QTest>

#include <array>

namespace Quillory {

using namespace Qt::StringLiterals;

/// A page without a title has no header, and nothing to tap there.
inline InventoryList NamedList()
{
    InventoryList list = NewInventoryList();
    list.Name = u"Tools"_s;
    return list;
}

/// A list, what pages on it are made from, and what they gave.
struct Subject
{
    ListFixture file { u"Pantry"_s };
    InventoryList list = NamedList();
    PageStack stack;
    Page* page = nullptr;
    QList<PageResult> results;
};

/// A page that needs no list.
template <typename Type, auto... kArguments> Page* Make(Subject& /*subject*/)
{
    return new Type(kArguments...);
}

template <SheetMode kMode> Page* MakeSheet(Subject& subject)
{
    return new ListSheet(kMode, subject.list, subject.list);
}

template <FilterMode kMode> Page* MakeFilter(Subject& subject)
{
    return new FilterPage({ kMode, {} }, subject.list, subject.file.context);
}

struct PageCase
{
    const char* name;
    /// What there is besides Escape and closing.
    QStringList ways;
    /// Whether a letter typed first, or Space, is input that could be lost.
    bool takesInput;
    /// Where its help begins.
    QString help;
    /// The names of what Tab goes through.
    QString stops;
    Page* (*make)(Subject& subject);
};

inline const QStringList kOk { u"tap ok"_s, u"press Return"_s };
inline const QStringList kOkAndCancel { u"tap ok"_s, u"tap leftKey"_s, u"press Return"_s };

inline const std::array kPages {
    PageCase { "new list", kOkAndCancel, true, u"newlist"_s,
        u"Icon, Next icon, Previous icon, All icons, Cancel, Help, OK, General, Name"_s,
        MakeSheet<SheetMode::NewList> },
    PageCase { "list properties", kOkAndCancel, true, u"newlist"_s,
        u"Icon, Next icon, Previous icon, All icons, Cancel, Help, OK, General, Name"_s,
        MakeSheet<SheetMode::ExistingList> },
    PageCase { "column definition", kOkAndCancel, true, {}, u"Type, Cancel, OK, Name"_s,
        Make<ColumnDefinitionPage> },
    PageCase { "options", kOkAndCancel, true, u"options"_s,
        u"Use alternate row colour, Cancel, Help, OK, Display list using landscape mode"_s,
        [](Subject&) -> Page* { return new DisplayOptionsPage({}); } },
    PageCase { "import order", kOkAndCancel, false, u"importlist"_s,
        u"Move Down, Cancel, Help, OK, Import Column Order"_s,
        [](Subject& subject) -> Page* { return new ImportOrderPage(subject.list.columns); } },
    // Return takes the selected icon.
    PageCase { "icon grid", { u"tap leftKey"_s, u"press Return"_s }, false, {}, u"Cancel, Icons"_s,
        Make<IconGridPage, 0> },
    PageCase { "find", kOkAndCancel, true, {}, u"Cancel, OK, Field:, Condition:, Value:"_s,
        MakeFilter<FilterMode::Find> },
    PageCase { "filter", kOkAndCancel, false, {}, u"Condition:, Value:, Cancel, OK, Field:"_s,
        MakeFilter<FilterMode::Filter> },
    PageCase { "filters", kOk, false, {}, u"Add, Menu, OK, Filters"_s,
        [](Subject& subject) -> Page* {
            return new FiltersPage({}, subject.list, subject.file.context);
        } },
    // Return goes on to the next field.
    PageCase { "row editor", { u"tap ok"_s, u"tap leftKey"_s }, true, u"editlist"_s, u"Quantity"_s,
        [](Subject& subject) -> Page* {
            return new RowEditor(subject.list, nullptr, subject.file.context);
        } },
    // Return edits the selected row.
    PageCase { "rows", { u"tap ok"_s }, false, u"editlist"_s, u"New, Menu, Help, OK, Pantry"_s,
        [](Subject& subject) -> Page* {
            return new RowsView(*subject.file.rows, subject.file.list, subject.file.context, {});
        } },
    PageCase { "summary", kOk, false, {}, u"OK, Totals"_s,
        [](Subject&) -> Page* { return new SummaryPage({}); } },
    PageCase { "help", kOk, false, {}, u"Help"_s,
        [](Subject&) -> Page* { return new HelpPage(u"newlist"_s); } },
    PageCase { "about", kOk, false, u"Main_Contents"_s, u"Help, OK"_s, Make<AboutPage> },
    // Return opens the selected list.
    PageCase { "lists", {}, false, {}, u"Help, New, Menu, Inventory List"_s,
        [](Subject& subject) -> Page* {
            auto* page = new HomeList;
            page->Fill(subject.file.catalogue->FillHomeList().lists);
            return page;
        } },
    PageCase { "welcome", kOk, false, {}, u"OK"_s, Make<WelcomePage> },
};

inline void Show(Subject& subject, const PageCase& page)
{
    subject.stack.resize(360, 640);
    subject.stack.Push(new Page(QString()));
    subject.page = page.make(subject);
    subject.stack.Push(subject.page, [&subject](PageResult result) { subject.results << result; });
    subject.stack.show();
    QVERIFY(QTest::qWaitForWindowActive(&subject.stack));
}

} // namespace Quillory

// SPDX-License-Identifier: MIT
#include "listdef/column_definition_page.h"

#include "res/dialog_table.h"
#include "res/string_table.h"
#include "store/inventory_list.h"
#include "values/column_type.h"
#include "widgets/form.h"
#include "widgets/text_line.h"

#include <QComboBox>
#include <QVBoxLayout>

namespace Quillory {

using namespace Qt::StringLiterals;

ColumnDefinitionPage::ColumnDefinitionPage(QWidget* parent)
    : Page(DialogTitle(Dialog::ColumnDefinition), parent)
    , m_name(new TextLine(this))
    , m_type(new QComboBox(this))
{
    setObjectName(u"columnDefinition"_s);
    m_name->setObjectName(u"columnName"_s);
    m_name->setMaxLength(kMaxColumnNameLength);
    m_type->setObjectName(u"columnType"_s);
    for (int type = 0; type < kColumnTypeCount; ++type)
        m_type->addItem(LoadString(static_cast<int>(StringId::TypeString) + type));
    auto* content = new QWidget(this);
    auto* lines = new QVBoxLayout(content);
    lines->setContentsMargins({});
    Form form(lines);
    form.AddLine(LoadString(StringId::Name), m_name);
    form.AddLine(LoadString(StringId::Type), m_type);
    lines->addStretch(1);
    Body()->addWidget(MakeScrollable(content));
    SetSoftKeys(SoftKeysOf(MenuBar::Cancel));
    setFocusProxy(m_name);
}

QString ColumnDefinitionPage::Name() const
{
    return m_name->text();
}

int ColumnDefinitionPage::TypeIndex() const
{
    return m_type->currentIndex();
}

bool ColumnDefinitionPage::HasUnsavedInput() const
{
    return !Name().isEmpty() || TypeIndex() != 0;
}

} // namespace Quillory

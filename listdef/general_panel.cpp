// SPDX-License-Identifier: MIT
#include "listdef/general_panel.h"

#include "res/string_table.h"
#include "store/inventory_list.h"
#include "widgets/form.h"
#include "widgets/icon_picker.h"
#include "widgets/text_line.h"

#include <QVBoxLayout>

namespace Quillory {

using namespace Qt::StringLiterals;

GeneralPanel::GeneralPanel(const InventoryList& list, QWidget* parent)
    : QWidget(parent)
    , m_name(new TextLine(this))
    , m_icon(new IconPicker(this))
{
    m_name->setObjectName(u"listName"_s);
    m_name->setMaxLength(kMaxListNameLength);
    m_name->Give(list.Name);
    m_icon->setObjectName(u"listIcon"_s);
    m_icon->SetIcon(list.TableIcon);
    auto* body = new QVBoxLayout(this);
    body->setContentsMargins(0, 0, 0, 0);
    Form form(body);
    form.AddLine(LoadString(StringId::Name), m_name);
    form.AddLine(tr("Icon"), m_icon);
    body->addStretch(1);
    setFocusProxy(m_name);
}

void GeneralPanel::Apply(InventoryList& list) const
{
    list.Name = m_name->Entry();
    list.TableIcon = static_cast<qint16>(m_icon->Icon());
}

} // namespace Quillory

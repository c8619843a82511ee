// SPDX-License-Identifier: MIT
#include "listdef/options_panel.h"

#include "listdef/threshold_edit.h"
#include "res/dialog_table.h"
#include "res/string_table.h"
#include "store/inventory_list.h"
#include "widgets/colour_button.h"
#include "widgets/colour_palette.h"
#include "widgets/form.h"
#include "widgets/measures.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace Quillory {

using namespace Qt::StringLiterals;

OptionsPanel::OptionsPanel(const InventoryList& list, QWidget* parent)
    : QWidget(parent)
    , m_warnOnCount(new QCheckBox(this))
    , m_threshold(new ThresholdEdit(list.TableWarnStart, this))
    , m_toColour(new QLabel(LoadText(Text::ToColour), this))
    , m_countColour(new ColourButton(this))
    , m_countLine(MakeCountLine())
    , m_warnOnExpiry(new QCheckBox(this))
    , m_expiryColour(new ColourButton(this))
    , m_noExpiry(MakeNote(tr("Only lists with an expiry date column can warn of dates.")))
{
    Build();
    m_countColour->SetColour(list.TableWarnColour);
    m_expiryColour->SetColour(list.TableExpiryColour);
    m_warnOnCount->setChecked((list.TableOption & kWarnOnCount) != 0);
    m_warnOnExpiry->setChecked((list.TableOption & kWarnOnExpiry) != 0);
    for (QCheckBox* box : { m_warnOnCount, m_warnOnExpiry })
        connect(box, &QCheckBox::toggled, this, &OptionsPanel::UpdateEnabled);
    UpdateEnabled();
    setFocusProxy(m_warnOnCount);
}

void OptionsPanel::Build()
{
    m_warnOnCount->setObjectName(u"warnOnCount"_s);
    m_countColour->setObjectName(u"countColour"_s);
    m_countColour->setAccessibleDescription(ControlText(Control::WarnOnCount));
    m_warnOnExpiry->setObjectName(u"warnOnExpiry"_s);
    m_expiryColour->setObjectName(u"expiryColour"_s);
    m_expiryColour->setAccessibleDescription(ControlText(Control::WarnOnExpiry));

    auto* body = new QVBoxLayout(this);
    body->setSpacing(kGrid);
    AddButtonLine(*body, *m_warnOnCount, ControlText(Control::WarnOnCount));
    body->addLayout(m_countLine);
    body->addSpacing(kPageMargin);
    AddButtonLine(*body, *m_warnOnExpiry, ControlText(Control::WarnOnExpiry));
    auto* expiry = new QHBoxLayout;
    expiry->addStretch(1);
    expiry->addWidget(m_expiryColour);
    body->addLayout(expiry);
    body->addWidget(m_noExpiry);
    body->addStretch(1);
}

QBoxLayout* OptionsPanel::MakeCountLine()
{
    m_toColour->setWordWrap(true);
    auto* colour = new QHBoxLayout;
    colour->setSpacing(kGrid);
    colour->addWidget(m_toColour, 1);
    colour->addWidget(m_countColour);
    auto* line = new QHBoxLayout;
    line->setContentsMargins(LineMargins(kCheckIndent, 0, layoutDirection()));
    line->setSpacing(kGrid);
    line->addWidget(m_threshold, 1);
    line->addLayout(colour);
    return line;
}

void OptionsPanel::FitTo(int pageWidth)
{
    const bool isNarrow = pageWidth < kNarrowPage;
    const int margin = isNarrow ? kNarrowMargin : kPageMargin;
    layout()->setContentsMargins(margin, margin, margin, kGrid);
    m_countLine->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void OptionsPanel::SetHasExpiryDate(bool hasExpiryDate)
{
    m_hasExpiryDate = hasExpiryDate;
    UpdateEnabled();
}

void OptionsPanel::UpdateEnabled()
{
    const bool warnsOnCount = m_warnOnCount->isChecked();
    m_threshold->setEnabled(warnsOnCount);
    m_toColour->setEnabled(warnsOnCount);
    m_countColour->setEnabled(warnsOnCount);
    m_warnOnExpiry->setEnabled(m_hasExpiryDate);
    m_noExpiry->setVisible(!m_hasExpiryDate);
    m_expiryColour->setEnabled(m_hasExpiryDate && m_warnOnExpiry->isChecked());
}

void OptionsPanel::Apply(InventoryList& list) const
{
    list.TableWarnStart = m_threshold->Value();
    // A colour that the program does not know is shown as the automatic one, and kept.
    const auto take = [](quint32& stored, quint32 chosen) {
        if (stored < kColourCount || chosen != kAutomaticColour)
            stored = chosen;
    };
    take(list.TableWarnColour, m_countColour->Colour());
    take(list.TableExpiryColour, m_expiryColour->Colour());
    list.TableOption &= ~(kWarnOnCount | kWarnOnExpiry);
    if (m_warnOnCount->isChecked())
        list.TableOption |= kWarnOnCount;
    if (m_warnOnExpiry->isChecked())
        list.TableOption |= kWarnOnExpiry;
}

} // namespace Quillory

// SPDX-License-Identifier: MIT
#include "listdef/display_options_page.h"

#include "res/dialog_table.h"
#include "widgets/form.h"
#include "widgets/measures.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace Quillory {

using namespace Qt::StringLiterals;

DisplayOptionsPage::DisplayOptionsPage(const DisplayOptions& options, QWidget* parent)
    : Page(DialogTitle(Dialog::DisplayOptions), parent)
    , m_before(options)
    , m_landscape(new QCheckBox(this))
    , m_rightHanded(new QRadioButton(this))
    , m_leftHanded(new QRadioButton(this))
    , m_alternate(new QCheckBox(this))
{
    setObjectName(u"displayOptions"_s);
    m_landscape->setObjectName(u"landscape"_s);
    m_rightHanded->setObjectName(u"landscapeRight"_s);
    m_leftHanded->setObjectName(u"landscapeLeft"_s);
    m_alternate->setObjectName(u"alternateColour"_s);
    SetHelpAnchor(QString::fromLatin1(kHelpOptions));
    auto* content = new QWidget(this);
    auto* lines = new QVBoxLayout(content);
    lines->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kGrid);
    lines->setSpacing(kGrid);
    AddButtonLine(*lines, *m_landscape, ControlText(Control::Landscape));
    AddButtonLine(*lines, *m_rightHanded, ControlText(Control::LandscapeRight), kPageMargin);
    AddButtonLine(*lines, *m_leftHanded, ControlText(Control::LandscapeLeft), kPageMargin);
    AddButtonLine(*lines, *m_alternate, ControlText(Control::AlternateColour));
    lines->addStretch(1);
    Body()->addWidget(MakeScrollable(content), 1);

    (options.isRightHanded ? m_rightHanded : m_leftHanded)->setChecked(true);
    m_alternate->setChecked(options.hasAlternateLines);
    const auto enable = [this](bool isLandscape) {
        m_rightHanded->setEnabled(isLandscape);
        m_leftHanded->setEnabled(isLandscape);
    };
    connect(m_landscape, &QCheckBox::toggled, this, enable);
    m_landscape->setChecked(options.isLandscape);
    enable(options.isLandscape);

    SetSoftKeys(SoftKeysOf(MenuBar::Cancel));
    setFocusProxy(m_landscape);
}

DisplayOptions DisplayOptionsPage::Result() const
{
    return { m_landscape->isChecked(), m_rightHanded->isChecked(), m_alternate->isChecked() };
}

bool DisplayOptionsPage::HasUnsavedInput() const
{
    return Result() != m_before;
}

} // namespace Quillory

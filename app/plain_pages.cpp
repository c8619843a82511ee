// SPDX-License-Identifier: MIT
#include "app/plain_pages.h"

#include "res/dialog_table.h"
#include "res/string_table.h"
#include "widgets/form.h"
#include "widgets/icon_set.h"
#include "widgets/measures.h"

#include <QEvent>
#include <QFontInfo>
#include <QLabel>
#include <QVBoxLayout>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr int kLargeIcon = 64;
constexpr int kMaxTextWidth = 480;

QLabel* NewIconLabel(const QWidget* page)
{
    auto* label = new QLabel;
    label->setPixmap(
        ApplicationIcon().pixmap(QSize(kLargeIcon, kLargeIcon), page->devicePixelRatioF()));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QLabel* NewTextLabel(const QString& text)
{
    auto* label = new QLabel(text);
    label->setAlignment(Qt::AlignCenter);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMaximumWidth(kMaxTextWidth);
    label->setMargin(kPageMargin);
    return label;
}

/// One below the other, a little above the middle of the page; a low page scrolls.
void AddCentred(QWidget* page, QVBoxLayout& body, std::initializer_list<QWidget*> widgets)
{
    auto* content = new QWidget(page);
    auto* lines = new QVBoxLayout(content);
    lines->setContentsMargins({});
    lines->addStretch(2);
    for (QWidget* widget : widgets) {
        auto* line = new QHBoxLayout;
        line->addStretch();
        line->addWidget(widget, 1);
        line->addStretch();
        lines->addLayout(line);
    }
    lines->addStretch(3);
    body.addWidget(MakeScrollable(content));
}

} // namespace

WelcomePage::WelcomePage(QWidget* parent)
    : Page(DialogTitle(Dialog::Welcome), parent)
{
    setObjectName(u"WelcomePage"_s);
    AddCentred(this, *Body(), { NewIconLabel(this), NewTextLabel(LoadText(Text::Welcome)) });
}

AboutPage::AboutPage(QWidget* parent)
    : Page(LoadText(Text::Caption), parent)
{
    setObjectName(u"AboutPage"_s);
    SetHelpAnchor(QString::fromLatin1(kHelpMain));
    m_name = NewTextLabel(LoadText(Text::Caption));
    FitName();
    QLabel* version
        = NewTextLabel(LoadText(Text::Version) + u' ' + ControlText(Control::VersionText));
    version->setObjectName(u"VersionText"_s);
    AddCentred(this, *Body(), { NewIconLabel(this), m_name, version });
}

void AboutPage::FitName()
{
    QFont large = font();
    large.setPointSizeF(QFontInfo(large).pointSizeF() * 1.6);
    large.setBold(true);
    m_name->setFont(FontFitting(large, m_name->text(), width() - 2 * kPageMargin));
}

void AboutPage::resizeEvent(QResizeEvent* event)
{
    FitName();
    Page::resizeEvent(event);
}

void AboutPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        FitName();
    Page::changeEvent(event);
}

} // namespace Quillory

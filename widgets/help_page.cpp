// SPDX-License-Identifier: MIT
#include "widgets/help_page.h"

#include "widgets/measures.h"
#include "widgets/touch.h"

#include <QTextBrowser>
#include <QTextDocument>
#include <QTimer>
#include <QVBoxLayout>

// Resources of a static library are not found unless somebody asks for them by name.
static void LoadHelpResources()
{
    Q_INIT_RESOURCE(help);
}

namespace Quillory {

using namespace Qt::StringLiterals;

HelpPage::HelpPage(const QString& anchor, QWidget* parent)
    : Page(tr("Help"), parent)
{
    LoadHelpResources();
    setObjectName(u"helpPage"_s);
    auto* text = new QTextBrowser(this);
    text->setObjectName(u"helpText"_s);
    text->setAccessibleName(Title());
    text->setFrameShape(QFrame::NoFrame);
    text->setOpenExternalLinks(false);
    text->document()->setDocumentMargin(kPageMargin);
    new TouchBehaviour(text);
    Body()->addWidget(text, 1);
    setFocusProxy(text);
    //: The file of the help, such as Quillory_de.htm where it is there in German.
    const QUrl place(u"qrc:/help/%1#%2"_s.arg(tr("Quillory.htm"), anchor));
    text->setSource(place);
    // Where an anchor stands is known once the page has its width.
    QTimer::singleShot(0, text, [text, place] { text->scrollToAnchor(place.fragment()); });
}

} // namespace Quillory

// SPDX-License-Identifier: MIT
#include "widgets/help_page.h"

#include "widgets/measures.h"
#include "widgets/touch.h"

#include <QScrollBar>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>

// Resources of a static library are not found unless somebody asks for them by name.
static void LoadHelpResources()
{
    Q_INIT_RESOURCE(help);
}

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Stays where a section begins, whatever width it gets, until somebody scrolls.
class SectionBrowser : public QTextBrowser
{
public:
    using QTextBrowser::QTextBrowser;

protected:
    void doSetSource(const QUrl& section, QTextDocument::ResourceType type) override
    {
        QTextBrowser::doSetSource(section, type);
        m_sectionTop = verticalScrollBar()->value();
    }
    void resizeEvent(QResizeEvent* event) override
    {
        const bool isAtSection = verticalScrollBar()->value() == m_sectionTop;
        QTextBrowser::resizeEvent(event);
        // The text is laid out bit by bit when nothing else is to do, unless its end is asked for.
        document()->pageCount();
        if (!isAtSection)
            return;
        scrollToAnchor(source().fragment());
        m_sectionTop = verticalScrollBar()->value();
    }

private:
    int m_sectionTop = 0;
};

} // namespace

HelpPage::HelpPage(const QString& anchor, QWidget* parent)
    : Page(tr("Help"), parent)
{
    LoadHelpResources();
    setObjectName(u"helpPage"_s);
    auto* text = new SectionBrowser(this);
    text->setObjectName(u"helpText"_s);
    text->setAccessibleName(Title());
    text->setFrameShape(QFrame::NoFrame);
    text->setOpenExternalLinks(false);
    text->document()->setDocumentMargin(kPageMargin);
    new TouchBehaviour(text);
    Body()->addWidget(text, 1);
    setFocusProxy(text);
    //: The file of the help, such as Quillory_de.htm where it is there in German.
    text->setSource(u"qrc:/help/%1#%2"_s.arg(tr("Quillory.htm"), anchor));
}

} // namespace Quillory

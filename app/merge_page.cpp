// SPDX-License-Identifier: MIT
#include "app/merge_page.h"

#include "values/column_type.h"
#include "widgets/colour_palette.h"
#include "widgets/icon_set.h"
#include "widgets/measures.h"
#include "widgets/touch.h"

#include <QCoreApplication>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Nobody reads more; the rest is counted.
constexpr size_t kMostNotes = 1000;

/// The settings of a list by the names that notes have for them.
struct SettingText
{
    const char* name;
    /// Null where the value is read as it is.
    QString (*nameOf)(int number);
};

QString NameOfColour(int index)
{
    return ColourName(static_cast<quint32>(index));
}

constexpr std::array kSettings {
    SettingText { QT_TRANSLATE_NOOP("Quillory::MergePage", "name of the list"), nullptr },
    SettingText { QT_TRANSLATE_NOOP("Quillory::MergePage", "icon"), ListIconName },
    SettingText { QT_TRANSLATE_NOOP("Quillory::MergePage", "warning of counts"), nullptr },
    SettingText { QT_TRANSLATE_NOOP("Quillory::MergePage", "warning of expiry"), nullptr },
    SettingText { QT_TRANSLATE_NOOP("Quillory::MergePage", "count to warn at"), nullptr },
    SettingText { QT_TRANSLATE_NOOP("Quillory::MergePage", "colour of counts"), NameOfColour },
    SettingText { QT_TRANSLATE_NOOP("Quillory::MergePage", "colour of expiry"), NameOfColour },
};

/// The sentences of notes.
class NoteText
{
    Q_DECLARE_TR_FUNCTIONS(Quillory::MergePage)

public:
    NoteText(const MergeNote& note, const ValueContext& context)
        : m_note(note)
        , m_context(context)
        , m_setting(std::ranges::find_if(kSettings, [&note](const SettingText& entry) {
            return note.column == QLatin1StringView(entry.name);
        }))
    { }

    [[nodiscard]] QString Sentence() const
    {
        using Kind = MergeNote::Kind;
        switch (m_note.kind) {
        case Kind::ListCame:
            return tr("The list came from the other device.");
        case Kind::ListWent:
            return tr("The list was deleted on the other device.");
        case Kind::ListKept:
            return m_note.wasDeletedHere
                ? tr("The list was deleted here and changed on the other device: it is back.")
                : tr("The list was deleted on the other device and changed here: it stays.");
        case Kind::ListsJoined:
            return tr("Both devices had made this list: it is one now.");
        case Kind::RowCame:
            return tr("%1: came from the other device.").arg(m_note.row);
        case Kind::RowWent:
            return tr("%1: was deleted on the other device.").arg(m_note.row);
        case Kind::RowKept:
            return (m_note.wasDeletedHere
                    ? tr("%1: was deleted here and changed on the other device, and is back.")
                    : tr("%1: was deleted on the other device and changed here, and stays."))
                .arg(m_note.row);
        case Kind::RowCopied:
            return tr("%1: a copy of the row has the other values.").arg(m_note.row);
        case Kind::ValueCame:
            //: Such as "Tea, Quantity: 5 came in the place of 3."
            return WithValues(tr("%1: %2 came in the place of %3."));
        case Kind::ValueDecided:
            return WithValues(tr("%1: both devices had changed it. It is %2; the other was %3."));
        case Kind::CountsAdded:
            return WithValues(tr("%1: both devices had counted. It is %2; the other was %3."));
        case Kind::CountsLimited:
            break;
        }
        return WithValues(
            tr("%1: both devices had counted beyond the limit. It is %2; the other was %3."));
    }

private:
    const MergeNote& m_note;
    const ValueContext& m_context;
    decltype(kSettings)::const_iterator m_setting;

    /// What the note is about.
    [[nodiscard]] QString Subject() const
    {
        if (m_note.row.isEmpty() && m_setting != kSettings.end())
            return tr(m_setting->name);
        //: A row's name and that of a column.
        return tr("%1, %2").arg(m_note.row, m_note.column);
    }
    [[nodiscard]] QString TextOf(const PropertyValue& value) const
    {
        const bool isSetting = m_note.row.isEmpty() && m_setting != kSettings.end();
        const auto* number = std::get_if<qint32>(&value.value);
        const QString text = isSetting && m_setting->nameOf != nullptr && number != nullptr
            ? m_setting->nameOf(*number)
            : FormatEditText(value.IsMissing() ? nullptr : &value, value.id, m_context);
        //: In the place of a value that is not there.
        return text.isEmpty() ? tr("nothing") : text;
    }
    [[nodiscard]] QString WithValues(const QString& sentence) const
    {
        return sentence.arg(Subject(), TextOf(m_note.kept), TextOf(m_note.other));
    }
};

} // namespace

MergePage::MergePage(const MergePlan& plan, const ValueContext& context, QWidget* parent)
    : Page(tr("Brought together"), parent)
{
    setObjectName(u"mergePage"_s);
    auto* text = new QTextBrowser(this);
    text->setObjectName(u"mergeText"_s);
    text->setAccessibleName(Title());
    text->setFrameShape(QFrame::NoFrame);
    text->document()->setDocumentMargin(kPageMargin);
    new TouchBehaviour(text);
    Body()->addWidget(text, 1);
    setFocusProxy(text);
    const std::vector<MergeNote>& notes = plan.notes;
    QString html;
    if (plan.kinship == Kinship::Unrelated)
        html = u"<p>"_s
            + tr("What both come from was not known any more. So nothing was deleted, and counts "
                 "that both had changed were not added up.")
                  .toHtmlEscaped()
            + u"</p>"_s;
    std::optional<QString> list;
    const size_t shown = std::min(notes.size(), kMostNotes);
    for (const MergeNote& note : std::span(notes).first(shown)) {
        if (note.list != list)
            html += u"<h3>"_s + note.list.toHtmlEscaped() + u"</h3>"_s;
        list = note.list;
        html += u"<p>"_s + NoteText(note, context).Sentence().toHtmlEscaped() + u"</p>"_s;
    }
    if (shown < notes.size())
        html += u"<p>"_s
            + tr("And %n more.", nullptr, static_cast<int>(notes.size() - shown)).toHtmlEscaped()
            + u"</p>"_s;
    text->setHtml(html);
}

} // namespace Quillory

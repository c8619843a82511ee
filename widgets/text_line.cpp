// SPDX-License-Identifier: MIT
#include "widgets/text_line.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <QValidator>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

QString InOneLine(QString text)
{
    static const QRegularExpression breaks(u"\\r\\n|[\\t-\\r\\x{2028}\\x{2029}]"_s);
    return text.replace(breaks, u" "_s);
}

/// Takes every text, in one line.
class OneLineValidator : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString& text, int& cursor) const override
    {
        cursor = static_cast<int>(InOneLine(text.left(cursor)).size());
        text = InOneLine(text);
        return Acceptable;
    }
};

} // namespace

QString TipOf(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

void KeepToOneLine(QLineEdit* edit)
{
    edit->setValidator(new OneLineValidator(edit));
}

TextLine::TextLine(QWidget* parent)
    : QLineEdit(parent)
{
    KeepToOneLine(this);
}

void TextLine::Give(const QString& text)
{
    m_given = text;
    setText(text);
    m_shown = this->text();
}

QString TextLine::Entry() const
{
    return text() == m_shown ? m_given : text();
}

} // namespace Quillory

// SPDX-License-Identifier: MIT
#pragma once

#include "store/inventory_list.h"
#include "values/value_text.h"

#include <QObject>

class QComboBox;
class QKeyEvent;

namespace Quillory {

class DateField;
class TextLine;

/// What an on-screen keyboard is to offer for values of a column.
[[nodiscard]] Qt::InputMethodHints HintsFor(PropertyId column);

/// The control that edits one field of a row in its place: a line of text, the two states of a
/// checkbox, or a date. One of the three is shown at a time.
class FieldControl : public QObject
{
    Q_OBJECT

public:
    /// The controls are children of `place`. `context` outlives this.
    FieldControl(const ValueContext& context, QWidget* place);

    /// Shows the control that fits the column with the value `text`, and gives it the keyboard. An
    /// emptied date falls back on `stored`.
    void Open(const ColumnDefinition& column, const QString& stored, const QString& text);
    void Place(const QRect& rect);
    /// The control that is shown; null before the first Open.
    [[nodiscard]] QWidget* Shown() const { return m_shown; }
    /// The value as it stands in the control. What nobody touched comes back as it was given.
    [[nodiscard]] QString Text() const;
    /// The field of a date.
    [[nodiscard]] DateField* Date() const { return m_date; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Another control of the window was given the keyboard.
    void Left();
    /// A key asked for the next field (1) or the previous one (-1).
    void Stepped(int by);
    /// Return was typed.
    void Confirmed();

private:
    TextLine* m_edit;
    QComboBox* m_box;
    DateField* m_date;
    QWidget* m_shown = nullptr;
    /// Shift went down, and no other key since.
    bool m_isShiftAlone = false;
    /// Shift was pressed and let go by itself, as an on-screen keyboard does to latch it.
    bool m_isShiftLatched = false;

    void Show(QWidget* control);
    [[nodiscard]] bool HandleKey(const QKeyEvent& event);
    [[nodiscard]] bool IsLeft(Qt::FocusReason reason) const;
};

} // namespace Quillory

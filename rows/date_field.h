// SPDX-License-Identifier: MIT
#pragma once

#include "values/value_text.h"

#include <QDate>
#include <QWidget>

#include <optional>

class QLineEdit;

namespace Quillory {

/// A date: typed as ReadTypedDate() reads it, or picked from a calendar, which starts
/// at today where there is no date. A typed text that names no day stays, struck out once the field
/// is left.
class DateField : public QWidget
{
    Q_OBJECT

public:
    /// `context` outlives the field.
    explicit DateField(const ValueContext& context, QWidget* parent = nullptr);

    /// Shows `text`, typed over `stored`: that is what an emptied field holds, and shows again.
    void Open(const QString& stored, const QString& text);
    /// The same with a day and nothing typed.
    void Open(QDate date);
    /// What was given if nothing was typed or all of it was emptied; a day as lists show it; any
    /// other text as it was typed.
    [[nodiscard]] QString Entry() const;

    /// The day that a text names; nothing if it names none.
    [[nodiscard]] std::optional<QDate> Read(const QString& text) const;
    /// Whether something was typed over `stored` that names no day.
    [[nodiscard]] bool IsUnread(const QString& stored, const QString& text) const;
    /// The same of what stands in the field.
    [[nodiscard]] bool IsUnread() const;
    /// Says in a message that what was typed is no date, and puts the cursor there.
    void TellUnread();

    /// Drops down the calendar; Alt+Down and F4 do the same.
    void OpenCalendar();
    /// Where text is typed; it has the keyboard for the field.
    [[nodiscard]] QLineEdit* Edit() const { return m_edit; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const ValueContext& m_context;
    QLineEdit* m_edit;
    /// What the field falls back on.
    QString m_stored;

    void MarkUnread(bool isUnread);
    [[nodiscard]] QString TextOf(QDate date) const;
};

} // namespace Quillory

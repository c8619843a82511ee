// SPDX-License-Identifier: MIT
#pragma once

#include "values/value_text.h"

#include <QDate>
#include <QWidget>

#include <optional>

class QLineEdit;

namespace Quillory {

/// A date: typed in any form that the user's locale reads, or picked from a calendar. Without a
/// date it shows today as a hint, and its calendar starts there, but it holds none until one is
/// typed or picked.
class DateField : public QWidget
{
    Q_OBJECT

public:
    /// `context` outlives the field.
    explicit DateField(const ValueContext& context, QWidget* parent = nullptr);

    /// Shows a date, and takes it for what the field falls back on.
    void SetDate(std::optional<QDate> date);
    /// Whether an emptied field holds no date. Otherwise, as at first, emptying it changes nothing.
    void SetMayBeEmptied(bool mayBeEmptied) { m_mayBeEmptied = mayBeEmptied; }
    /// The date that was typed or picked; the one that was set where the text names none.
    [[nodiscard]] std::optional<QDate> Date() const;
    /// Date() as a list shows it; empty without one.
    [[nodiscard]] QString DateText() const;

    /// The day that a text names; nothing if it names none that can be stored.
    [[nodiscard]] std::optional<QDate> Read(const QString& text) const;

    /// Drops down the calendar; Alt+Down and F4 do the same.
    void OpenCalendar();
    /// Where text is typed; it has the keyboard for the field.
    [[nodiscard]] QLineEdit* Edit() const { return m_edit; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const ValueContext& m_context;
    QLineEdit* m_edit;
    std::optional<QDate> m_date;
    /// The text of m_date: as long as it stands there nothing was typed.
    QString m_dateText;
    bool m_mayBeEmptied = false;

    [[nodiscard]] QString TextOf(QDate date) const;
};

} // namespace Quillory

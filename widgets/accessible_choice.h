// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

class QComboBox;

namespace Quillory {

/// A drop-down as assistive technology meets it: the toolkit gives the choice as its name, so that
/// what is chosen is not said. Its name is its accessible name, its text the choice.
class AccessibleChoice : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit AccessibleChoice(QComboBox* box);

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QAccessible::State state() const override;
    /// To open the list, and to choose what stands after or before the choice: in the list itself
    /// the toolkit offers no action that chooses.
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& name) override;
    // The list of choices is a window of its own.
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }

    [[nodiscard]] QString text(int start, int end) const override;
    [[nodiscard]] int characterCount() const override;
    void selection(int index, int* start, int* end) const override;
    [[nodiscard]] int selectionCount() const override { return 0; }
    void addSelection(int /*start*/, int /*end*/) override { }
    void removeSelection(int /*index*/) override { }
    void setSelection(int /*index*/, int /*start*/, int /*end*/) override { }
    [[nodiscard]] int cursorPosition() const override { return 0; }
    void setCursorPosition(int /*position*/) override { }
    [[nodiscard]] QRect characterRect(int /*offset*/) const override { return rect(); }
    [[nodiscard]] int offsetAtPoint(const QPoint& /*point*/) const override { return 0; }
    void scrollToSubstring(int /*start*/, int /*end*/) override { }
    QString attributes(int offset, int* start, int* end) const override;

private:
    QComboBox* m_box;
};

} // namespace Quillory

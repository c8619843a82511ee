// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Quillory {

/// Shows the icon of a list, with buttons to step through all icons. The picture opens the grid of
/// them, and so does one more button. Stands on a page of a page stack.
class IconPicker : public QWidget
{
    Q_OBJECT

public:
    explicit IconPicker(QWidget* parent = nullptr);

    /// -1 for none.
    [[nodiscard]] int Icon() const { return m_icon; }
    void SetIcon(int index);

    /// Opens the grid of all icons.
    void OpenGrid();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    int m_icon = -1;

    void Choose(int index);
    void NextIcon();
    void PreviousIcon();
};

} // namespace Quillory

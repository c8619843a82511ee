// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

namespace Quillory {

/// A button that shows one of the 36 colours and drops a grid of them all.
class ColourButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ColourButton(QWidget* parent = nullptr);

    [[nodiscard]] quint32 Colour() const { return m_colour; }
    /// Shows a colour; tells nobody.
    void SetColour(quint32 index);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// A colour was picked in the grid, if the one that was shown already. The arrow keys change
    /// the colour without a word: whoever applies the page reads Colour().
    void ColourPicked(quint32 index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    quint32 m_colour = 0;
    bool m_isOpen = false;

    void OpenGrid();
    void Step(int by);
    void DrawMark(QPainter& painter, const QRect& strip) const;
    void DrawSwatch(QPainter& painter, const QRect& area) const;
};

} // namespace Quillory

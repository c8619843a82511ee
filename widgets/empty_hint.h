// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

class QAbstractItemView;

namespace Quillory {

/// What an empty list says in place of lines: what to do next. Assistive technology reads it as the
/// description of the list.
class EmptyHint : public QLabel
{
    Q_OBJECT

public:
    /// Belongs to the view, which has its model already.
    explicit EmptyHint(QAbstractItemView* view);

    /// What is said from now on, while there are no lines.
    void Say(const QString& hint);

protected:
    /// Where all of it does not fit the letters are smaller.
    void resizeEvent(QResizeEvent* event) override;

private:
    QAbstractItemView* m_view;

    void Update();
};

} // namespace Quillory

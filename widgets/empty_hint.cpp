// SPDX-License-Identifier: MIT
#include "widgets/empty_hint.h"

#include "widgets/accessibility.h"
#include "widgets/measures.h"

#include <QAbstractItemView>
#include <QVBoxLayout>

namespace Quillory {

EmptyHint::EmptyHint(QAbstractItemView* view)
    : QLabel(view->viewport())
    , m_view(view)
{
    setObjectName(QStringLiteral("hint"));
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(kPageMargin);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setForegroundRole(QPalette::PlaceholderText);
    auto* room = new QVBoxLayout(view->viewport());
    room->setContentsMargins({});
    room->addWidget(this);
    const QAbstractItemModel* model = view->model();
    connect(model, &QAbstractItemModel::modelReset, this, &EmptyHint::Update);
    connect(model, &QAbstractItemModel::rowsInserted, this, &EmptyHint::Update);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &EmptyHint::Update);
    Update();
}

void EmptyHint::Say(const QString& hint)
{
    setText(hint);
    Update();
}

void EmptyHint::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    setFont(m_view->font());
    QFont fitting = font();
    for (int size = QFontInfo(fitting).pixelSize();
         size > CurrentMeasures().textSize && heightForWidth(width()) > height(); --size) {
        fitting.setPixelSize(size - 1);
        setFont(fitting);
    }
}

void EmptyHint::Update()
{
    const bool isEmpty = m_view->model()->rowCount() == 0;
    if (isEmpty && isHidden() && m_view->isVisible())
        Announce(text());
    setVisible(isEmpty);
    m_view->setAccessibleDescription(isEmpty ? text() : QString());
}

} // namespace Quillory

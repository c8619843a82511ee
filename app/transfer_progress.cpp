// SPDX-License-Identifier: MIT
#include "app/transfer_progress.h"

#include <QApplication>

#include <algorithm>

namespace Quillory {

namespace {

constexpr int kShowAfterMs = 500;
constexpr int kSteps = 1000;

} // namespace

TransferProgress::TransferProgress(QWidget* parent, const QString& title)
    : m_work(Questions::Of(parent))
    , m_dialog(parent)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_dialog.setObjectName(QStringLiteral("TransferProgress"));
    m_dialog.setLabelText(title);
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setMinimumDuration(kShowAfterMs);
    m_dialog.setRange(0, kSteps);
}

TransferProgress::~TransferProgress()
{
    QApplication::restoreOverrideCursor();
}

bool TransferProgress::Show(qint64 done, qint64 total)
{
    const qint64 step = total > 0 ? done * kSteps / total : 0;
    // The last step would take the bar away before the work is done.
    m_dialog.setValue(static_cast<int>(std::clamp<qint64>(step, 0, kSteps - 1)));
    return !m_dialog.wasCanceled();
}

} // namespace Quillory

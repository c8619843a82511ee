// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/questions.h"

#include <QProgressDialog>

namespace Quillory {

/// A bar with a Cancel button for work that holds the window up; it appears when the work turns out
/// to take longer than half a second. While it is shown nothing else in the window takes input.
class TransferProgress
{
public:
    TransferProgress(QWidget* parent, const QString& title);
    ~TransferProgress();
    TransferProgress(const TransferProgress&) = delete;
    TransferProgress& operator=(const TransferProgress&) = delete;

    /// False once Cancel was chosen.
    [[nodiscard]] bool Show(qint64 done, qint64 total);

private:
    Questions::Work m_work;
    QProgressDialog m_dialog;
};

} // namespace Quillory

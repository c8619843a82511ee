// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

namespace Quillory {

/// The application object of the window. Where memory runs out, the command ends that needed it,
/// not the program.
class Application : public QApplication
{
    Q_OBJECT

public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

Q_SIGNALS:
    /// Comes after the command that memory ran out in, and once for it.
    void MemoryRanOut();

private:
    bool m_isTelling = false;
};

} // namespace Quillory

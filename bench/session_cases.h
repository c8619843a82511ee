// SPDX-License-Identifier: MIT
#pragma once

#include "bench/harness.h"

#include <QApplication>

namespace Quillory {

/// An application that knows for how long its event loop stood still: for the events that it took
/// in one turn, during which no input is taken.
class WatchedApplication : public QApplication
{
public:
    WatchedApplication(int& argumentCount, char** argumentValues);

    bool notify(QObject* receiver, QEvent* event) override;

    /// The longest time since this was last asked.
    [[nodiscard]] double TakeLongestMs();

private:
    int m_depth = 0;
    double m_turnMs = 0;
    double m_longestMs = 0;

    void EndTurn();
};

/// Uses the program's window on lists of all sizes by taps and keys, and prints for how long each
/// step made the event loop stand still.
void PrintStandstills(WatchedApplication& application, const BenchOptions& options);

} // namespace Quillory

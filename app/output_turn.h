// SPDX-License-Identifier: MIT
#pragma once

#include "app/turned_output.h"

#include <optional>

namespace Quillory {

/// Turns an output of the X server, and turns it back at the latest when the object goes. A note in
/// a file lets the next start of the program turn it back if this one is killed. Elsewhere than on
/// X11 nothing is turned.
class OutputTurn
{
public:
    /// `notePath` is where the note is kept, in a folder that is there; empty for nowhere, and
    /// nothing is turned.
    explicit OutputTurn(const QString& notePath);
    ~OutputTurn();
    Q_DISABLE_COPY_MOVE(OutputTurn)

    /// Turns the output on from how it stands. False if it could not be turned, or one is turned
    /// already.
    [[nodiscard]] bool Turn(const QString& output, QuarterTurns turns);
    /// Turns the output back, unless somebody else has turned it meanwhile.
    void TurnBack();
    /// Does so for the output that an earlier run of the program, now ended, has left turned.
    void TurnBackForEarlierRun();

private:
    QString m_notePath;
    std::optional<TurnedOutput> m_turned;
};

} // namespace Quillory

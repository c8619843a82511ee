// SPDX-License-Identifier: MIT
#include "app/output_turn.h"

#include "app/x11_outputs.h"

#include <QFile>

namespace Quillory {

namespace {

QString DisplayName()
{
    return qEnvironmentVariable("DISPLAY");
}

} // namespace

OutputTurn::OutputTurn(const QString& notePath)
    : m_notePath(notePath)
{ }

OutputTurn::~OutputTurn()
{
    TurnBack();
}

bool OutputTurn::Turn(const QString& output, QuarterTurns turns)
{
    if (m_notePath.isEmpty() || m_turned)
        return false;
    const std::optional<QuarterTurns> before = TurnsOfOutput(output);
    if (!before)
        return false;
    const TurnedOutput turned { DisplayName(), output, *before, (*before + turns) % 4 };
    if (!WriteTurnedOutput(m_notePath, turned))
        return false;
    if (!TurnOutput(turned.output, turned.before, turned.after)) {
        QFile::remove(m_notePath);
        return false;
    }
    m_turned = turned;
    return true;
}

void OutputTurn::TurnBack()
{
    if (!m_turned)
        return;
    const TurnedOutput turned = *m_turned;
    m_turned.reset();
    // Where the output cannot be reached or turned a later start may try again.
    const std::optional<QuarterTurns> now = TurnsOfOutput(turned.output);
    if (now && (*now != turned.after || TurnOutput(turned.output, *now, turned.before)))
        QFile::remove(m_notePath);
}

void OutputTurn::TurnBackForEarlierRun()
{
    const std::optional<TurnedOutput> turned = ReadTurnedOutput(m_notePath);
    // On another display an output of the same name is another one.
    if (!turned || turned->display != DisplayName())
        return;
    m_turned = turned;
    TurnBack();
}

} // namespace Quillory

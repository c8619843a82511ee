// SPDX-License-Identifier: MIT
#pragma once

#include "tests/faults/session.h"

#include <memory>

namespace Quillory {

/// Does steps of a script while things go wrong, and believes what it is told: what was done, what
/// was not, and how many rows of an import came in.
class Believer
{
public:
    /// The file at `dataFile` holds what the script has done before `firstStep`.
    Believer(QByteArray dataFile, const Script& script, size_t firstStep);

    /// Starts the program and does so many steps, leaving out those that now mean nothing. A start
    /// that fails is tried once more.
    void Run(size_t stepCount);
    void End() { m_session.reset(); }

    [[nodiscard]] int FailedSteps() const { return m_failedSteps; }

    /// Starts the program anew, with nothing going wrong any more. Empty if the file holds exactly
    /// what was believed, passes the check and takes another change; else what is wrong. Where
    /// doubt is allowed, a step that was told to have failed may have been done, once.
    [[nodiscard]] QString Judge(bool isDoubtAllowed = false) const;

private:
    QByteArray m_dataFile;
    const Script& m_script;
    size_t m_firstStep;
    std::unique_ptr<Session> m_session;
    Model m_believed;
    /// What the file may hold instead because a step failed that may have been done.
    std::vector<QByteArray> m_doubtful;
    int m_failedSteps = 0;
    QString m_wrong;

    [[nodiscard]] bool Start();
    void Do(const Step& step);
    void NoteFailure(const Step& step, size_t importedRows);
};

} // namespace Quillory

// SPDX-License-Identifier: MIT
#pragma once

#include "tests/faults/session.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

/// Does steps of a script while things go wrong, and believes what it is told: what was done, what
/// was not, and how many rows of an import came in.
class Believer
{
public:
    /// The file at `dataFile` holds what the script has done before `firstStep`.
    Believer(QByteArray dataFile, const Script& script, size_t firstStep)
        : m_dataFile(std::move(dataFile))
        , m_script(script)
        , m_firstStep(firstStep)
    {
        for (size_t i = 0; i < firstStep; ++i)
            m_believed.Apply(script.steps[i]);
    }

    /// Starts the program and does so many steps, leaving out those that now mean nothing. A start
    /// that fails is tried once more.
    void Run(size_t stepCount)
    {
        if (!Start() && !Start())
            return;
        const size_t end = std::min(m_firstStep + stepCount, m_script.steps.size());
        for (size_t i = m_firstStep; i < end; ++i) {
            if (m_believed.CanApply(m_script.steps[i]))
                Do(m_script.steps[i]);
        }
    }
    void End() { m_session.reset(); }

    /// Starts the program anew, with nothing going wrong any more. Empty if the file holds exactly
    /// what was believed, passes the check and takes another change; else what is wrong. Where
    /// doubt is allowed, a step that was told to have failed may have been done, once.
    [[nodiscard]] QString Judge(bool isDoubtAllowed = false) const
    {
        if (!m_wrong.isEmpty())
            return m_wrong;
        const Reading reading = ReadDataFile(m_dataFile);
        if (reading.error != ErrorNumber::None)
            return Told("afterwards the file cannot be used", reading.error);
        const bool isDone
            = std::find(m_doubtful.begin(), m_doubtful.end(), reading.contents) != m_doubtful.end();
        if (reading.contents != m_believed.Contents() && !(isDone && isDoubtAllowed))
            return isDone ? u"a step that was told to have failed was done"_s
                          : u"the file holds something else than was told"_s;
        Session session;
        if (const ErrorNumber error = session.Start(m_dataFile); error != ErrorNumber::None)
            return Told("the file cannot be opened again", error);
        return session.Run(AnotherList()).isDone
            ? QString()
            : Told("no change can be made", session.LastError());
    }

private:
    QByteArray m_dataFile;
    const Script& m_script;
    size_t m_firstStep;
    std::unique_ptr<Session> m_session;
    Model m_believed;
    /// What the file may hold instead because a step failed that may have been done.
    std::vector<QByteArray> m_doubtful;
    QString m_wrong;

    static QString Told(const char* what, ErrorNumber error)
    {
        return u"%1: %2"_s.arg(QLatin1StringView(what), QLatin1StringView(ErrorPhrase(error)));
    }
    [[nodiscard]] bool Start()
    {
        m_session = std::make_unique<Session>();
        const ErrorNumber error = m_session->Start(m_dataFile);
        if (error == ErrorNumber::None)
            return true;
        if (HasNoReason(error))
            m_wrong = u"the start failed for no known reason"_s;
        return false;
    }
    void Do(const Step& step)
    {
        const auto outcome = m_session->Run(step);
        if (outcome.isDone) {
            m_believed.Apply(step);
            return;
        }
        if (HasNoReason(m_session->LastError()))
            m_wrong = u"a step failed for no known reason"_s;
        const auto importedRows = static_cast<size_t>(outcome.importedRows);
        NoteFailure(step, importedRows);
        if (step.action == Action::ImportRows)
            m_believed.ApplyImport(step, importedRows);
    }
    void NoteFailure(const Step& step, size_t importedRows)
    {
        Model model = m_believed;
        if (step.action == Action::ImportRows)
            model.ApplyImport(step, std::min(importedRows + kImportBatch, step.rows.size()));
        else
            model.Apply(step);
        m_doubtful.push_back(model.Contents());
    }
};

} // namespace Quillory

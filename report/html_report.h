// SPDX-License-Identifier: MIT
#pragma once

#include "report/report_source.h"

#include <QIODevice>

namespace Quillory {

/// Writes lists as one page that needs no other file: to be read, printed, or sent.
class HtmlReport : public ReportWriter
{
public:
    /// `target` outlives the report.
    HtmlReport(QIODevice& target, const QString& title);

    [[nodiscard]] Database::VisitOutcome Add(const ReportSource& list) override;
    void End() override;

private:
    QIODevice& m_target;
};

} // namespace Quillory

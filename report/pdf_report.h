// SPDX-License-Identifier: MIT
#pragma once

#include "report/report_source.h"

#include <QIODevice>

#include <memory>

namespace Quillory {

/// Writes lists as pages to print, each list from a page of its own on: upright, or across where
/// its columns ask for that. Titles of columns stand on each page. Lists are read as they are added
/// and printed at the end, for that takes long, and nobody who writes shall wait for it.
class PdfReport : public ReportWriter
{
public:
    /// Needs an application object that knows fonts. `target` outlives the report.
    PdfReport(QIODevice& target, const QString& title);
    ~PdfReport() override;

    [[nodiscard]] Database::VisitOutcome Add(const ReportSource& list) override;
    void End() override;

private:
    class Pages;
    std::unique_ptr<Pages> m_pages;
};

} // namespace Quillory

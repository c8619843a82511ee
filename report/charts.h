// SPDX-License-Identifier: MIT
#pragma once

#include "report/report_source.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace Quillory {

/// How wide each drawing is.
constexpr int kChartWidth = 640;

struct Chart
{
    /// What it shows, above it and for those who cannot see it.
    QString title;
    /// In an SVG of its own. Text is in `ink`.
    QByteArray drawing;
    int height = 0;
};

/// The drawings of a list: what expires in which of the next twelve months, and the least counts
/// beside the threshold. Those for which the list has nothing are left out.
[[nodiscard]] std::vector<Chart> DrawCharts(
    const ReportSource& source, const ReportFacts& facts, const QByteArray& ink);

} // namespace Quillory

// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

#include <memory>

namespace Quillory {

/// An application object that knows fonts and speaks the person's language, but needs no display;
/// null if there is one already.
[[nodiscard]] std::unique_ptr<QCoreApplication> MakeReportApplication();

} // namespace Quillory

// SPDX-License-Identifier: MIT
#include "report/report_application.h"

#include "res/language.h"

#include <QGuiApplication>

#include <array>

namespace Quillory {

std::unique_ptr<QCoreApplication> MakeReportApplication()
{
    if (QCoreApplication::instance() != nullptr)
        return nullptr;
    static int count = 1;
    static std::array<char, 9> name { "quillory" };
    static std::array<char*, 2> values { name.data(), nullptr };
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What the platform has to say of the environment is nothing to a report.
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/) {});
    auto application = std::make_unique<QGuiApplication>(count, values.data());
    qInstallMessageHandler(before);
    SpeakLanguage();
    return application;
}

} // namespace Quillory

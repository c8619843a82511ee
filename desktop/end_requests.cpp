// SPDX-License-Identifier: MIT
#include "desktop/end_requests.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QWidget>

#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>

namespace Quillory {

int CatchEndRequests()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : { SIGTERM, SIGINT, SIGHUP })
        sigaddset(&signals, signal);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    return signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

void MeetEndRequests(int endRequests, QWidget& window, const std::function<bool()>& letSessionEnd)
{
    const auto* notifier = new QSocketNotifier(endRequests, QSocketNotifier::Read, &window);
    QObject::connect(notifier, &QSocketNotifier::activated, &window, [&window, endRequests] {
        signalfd_siginfo endRequest;
        while (read(endRequests, &endRequest, sizeof(endRequest)) > 0)
            window.close();
    });
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, &window,
        [&window, letSessionEnd](QSessionManager& session) {
            if (letSessionEnd() || !session.allowsInteraction())
                return;
            session.cancel();
            window.close();
        });
}

} // namespace Quillory

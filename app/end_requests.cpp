// SPDX-License-Identifier: MIT
#include "app/end_requests.h"

#include "app/main_frame.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>

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

void MeetEndRequests(int endRequests, MainFrame& frame)
{
    const auto* notifier = new QSocketNotifier(endRequests, QSocketNotifier::Read, &frame);
    QObject::connect(notifier, &QSocketNotifier::activated, &frame, [&frame, endRequests] {
        signalfd_siginfo endRequest;
        while (read(endRequests, &endRequest, sizeof(endRequest)) > 0)
            frame.close();
    });
    QObject::connect(
        qGuiApp, &QGuiApplication::commitDataRequest, &frame, [&frame](QSessionManager& session) {
            if (frame.LetSessionEnd() || !session.allowsInteraction())
                return;
            session.cancel();
            frame.close();
        });
}

} // namespace Quillory

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QWidget;

namespace Quillory {

/// A descriptor that tells of SIGTERM, SIGINT and SIGHUP, which from now on do not end the process.
/// Called before there are threads.
[[nodiscard]] int CatchEndRequests();

/// Has `window` meet those signals, and the end of the desktop's session, as long as it lives. It
/// closes as its user would close it. `letSessionEnd` says whether the session may end with nothing
/// asked first; where it may not, the window closes instead.
void MeetEndRequests(int endRequests, QWidget& window, const std::function<bool()>& letSessionEnd);

} // namespace Quillory

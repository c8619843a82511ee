// SPDX-License-Identifier: MIT
#pragma once

namespace Quillory {

class MainFrame;

/// A descriptor that tells of SIGTERM, SIGINT and SIGHUP, which from now on do not end the process.
/// Called before there are threads.
[[nodiscard]] int CatchEndRequests();

/// Has `frame` meet those signals, and the end of the desktop's session, as long as it lives. It
/// closes as its user would close it: pages end, settings are saved.
void MeetEndRequests(int endRequests, MainFrame& frame);

} // namespace Quillory

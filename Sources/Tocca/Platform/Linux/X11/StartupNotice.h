#pragma once

#include <string>

namespace tocca::platform::linux {

/// Tells the desktop that the launch which it calls `id` (DESKTOP_STARTUP_ID) has come to its end, so that the pointer no longer shows one under
/// way. Does nothing for an empty name or without an X server.
///
/// The freedesktop.org Startup Notification Protocol, version 0.1. Threads: any; waits for the server.
void completeStartup(const std::string& id);

} // namespace tocca::platform::linux

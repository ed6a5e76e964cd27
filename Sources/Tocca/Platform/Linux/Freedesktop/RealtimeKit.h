#pragma once

#include <cstdint>

namespace tocca::platform::linux {

/// Asks the system's RealtimeKit service to raise the nice value of one of this process's threads; does not wait.
///
/// Not its real-time classes: they come with a limit under which the kernel kills a process that computes for too long, and
/// reading a long recording may.
/// Threads: main.
/// Errors: ignored; where the service is missing or refuses, the thread stays an ordinary one.
void raiseThreadThroughRealtimeKit(std::uint64_t threadId);

} // namespace tocca::platform::linux

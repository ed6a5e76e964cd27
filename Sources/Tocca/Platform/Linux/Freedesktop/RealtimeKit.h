#pragma once

#include <cstdint>

namespace tocca::platform::linux {

/// Asks the system's RealtimeKit service to raise the nice value of one of this process's threads; does not wait.
///
/// It does not ask for real-time scheduling: RealtimeKit grants that only to processes that the kernel kills when they compute for too
/// long, and reading a long recording may take that long.
/// Threads: main.
/// Errors: ignored; where the service is missing or refuses, the thread stays an ordinary one.
void raiseThreadThroughRealtimeKit(std::uint64_t threadId);

} // namespace tocca::platform::linux

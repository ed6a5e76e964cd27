#pragma once

#include "Support/ThreadRole.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tocca::platform::linux {

/// What the kernel gave a thread that asked to run before ordinary ones.
enum class Scheduling { Ordinary, RaisedNice, RealTime };

/// Asks some other authority, on behalf of the thread with the given kernel id, for what the kernel refused. Threads: any.
using SchedulingAppeal = std::function<void(std::uint64_t threadId)>;

/// Gives the calling thread its name (the first 15 bytes), its role and, when `isUserInteractive`, more than its fair share
/// of the processor: the lowest real-time priorities, else a raised nice value, else whatever `appeal` achieves.
/// Errors: none; a thread whose wish is refused goes on as an ordinary one.
Scheduling adoptThread(const std::string& name, ThreadRole role, bool isUserInteractive,
                       const SchedulingAppeal& appeal);

} // namespace tocca::platform::linux

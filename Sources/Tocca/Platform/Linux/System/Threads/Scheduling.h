#pragma once

#include "Support/ThreadRole.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tocca::platform::linux {

/// The scheduling that the kernel granted a thread that asked to run before ordinary ones.
enum class Scheduling { Ordinary, RaisedNice, RealTime };

/// Asks another service to raise the priority of the thread with this kernel id, after the kernel has refused. Threads: any.
using SchedulingAppeal = std::function<void(std::uint64_t threadId)>;

/// Gives the calling thread its name (the first 15 bytes) and its role, and raises its priority when `isUserInteractive`: to a low real-time
/// priority, else to a raised nice value, else to whatever `appeal` achieves.
/// Errors: none; a thread that is refused all of these goes on as an ordinary one.
Scheduling adoptThread(const std::string& name, ThreadRole role, bool isUserInteractive,
                       const SchedulingAppeal& appeal);

} // namespace tocca::platform::linux

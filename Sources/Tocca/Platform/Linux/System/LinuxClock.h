#pragma once

#include "Platform/Clock.h"
#include "Support/Realtime.h"

#include <chrono>

namespace tocca::platform::linux {

/// Seconds on CLOCK_MONOTONIC, which `steady_clock` reads on Linux, and with which X servers and sound servers stamp too.
/// Threads: any. Real-time: wait-free.
[[nodiscard]] inline double monotonicSeconds() noexcept REALTIME
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// The monotonic clock as a service of the platform.
class LinuxClock : public Clock {
public:
    [[nodiscard]] double now() const noexcept override { return monotonicSeconds(); }
};

} // namespace tocca::platform::linux

#pragma once

#include <chrono>

namespace tocca::instruments {

/// Seconds on CLOCK_MONOTONIC, the clock of recordings and of synthetic events.
[[nodiscard]] inline double now() noexcept
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace tocca::instruments

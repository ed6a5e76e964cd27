#include "Platform/Linux/System/LinuxClock.h"

#include <ctime>

namespace tocca::platform::linux {

double LinuxClock::now() const noexcept
{
    constexpr double kSecondsPerNanosecond = 1e-9;
    timespec time{};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * kSecondsPerNanosecond;
}

} // namespace tocca::platform::linux

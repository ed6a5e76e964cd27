#pragma once

#include "Platform/Clock.h"

namespace tocca::platform::linux {

/// CLOCK_MONOTONIC, which the X server and the sound server stamp with too.
class LinuxClock : public Clock {
public:
    [[nodiscard]] double now() const noexcept override;
};

} // namespace tocca::platform::linux

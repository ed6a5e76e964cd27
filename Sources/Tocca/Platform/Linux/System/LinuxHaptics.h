#pragma once

#include "Platform/Haptics.h"

namespace tocca::platform::linux {

/// Does nothing: no desktop or kernel interface of Linux reaches a touchpad's actuator.
class LinuxHaptics : public Haptics {
public:
    void performAlignment() override {}
};

} // namespace tocca::platform::linux

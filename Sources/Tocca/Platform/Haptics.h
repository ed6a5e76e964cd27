#pragma once

namespace tocca::platform {

/// Pulses of a touchpad's actuator; a computer without one ignores them. Threads: main.
class Haptics {
public:
    virtual ~Haptics() = default;

    /// Performs the alignment pattern now.
    virtual void performAlignment() = 0;
};

} // namespace tocca::platform

#pragma once

namespace tocca::platform {

/// The host's monotonic media clock, which events and audio share.
class Clock {
public:
    virtual ~Clock() = default;

    /// Seconds since an arbitrary fixed instant, never decreasing. Threads: any. Real-time: wait-free.
    [[nodiscard]] virtual double now() const noexcept = 0;
};

} // namespace tocca::platform

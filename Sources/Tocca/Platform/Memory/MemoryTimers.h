#pragma once

#include "Platform/Memory/VirtualTime.h"
#include "Platform/Timers.h"

namespace tocca::platform::memory {

/// Timers in virtual time.
class MemoryTimers : public Timers {
public:
    explicit MemoryTimers(VirtualTime& time)
        : time_(time)
    {}

    [[nodiscard]] std::unique_ptr<Timer> scheduleRepeating(double interval, Task tick) override;
    [[nodiscard]] std::unique_ptr<Timer> scheduleOnce(double delay, Task fire) override;

private:
    VirtualTime& time_;
};

} // namespace tocca::platform::memory

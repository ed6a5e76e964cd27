#pragma once

#include "Support/Task.h"

#include <memory>

namespace tocca::platform {

/// A scheduled timer; destroying it invalidates it, also from inside its own call. Threads: main.
class Timer {
public:
    virtual ~Timer() = default;
};

/// Timers on the main thread.
///
/// Units: seconds.
/// Threads: main, calls included.
/// Order: a timer never fires before the scheduling call has returned; timers due at one instant fire in scheduling order.
class Timers {
public:
    virtual ~Timers() = default;

    /// Calls `tick` every `interval` seconds, first after one interval. Late ticks are not made up for.
    [[nodiscard]] virtual std::unique_ptr<Timer> scheduleRepeating(double interval, Task tick) = 0;

    /// Calls `fire` once after `delay` seconds.
    [[nodiscard]] virtual std::unique_ptr<Timer> scheduleOnce(double delay, Task fire) = 0;
};

} // namespace tocca::platform

#pragma once

#include "Platform/Timers.h"

#include <memory>

namespace tocca::platform::linux {

/// Timers that share one timer descriptor (timerfd), which is set to the earliest of them: the program wakes up for nothing else.
///
/// The main thread's event loop calls `runDue` whenever `fd` is readable. An event loop nested in a timer's call serves the other timers;
/// a repeating timer does not interrupt its own call.
/// Threads: main.
/// Errors: an interval under 100 µs counts as 100 µs.
class LinuxTimers : public Timers {
public:
    LinuxTimers();

    [[nodiscard]] std::unique_ptr<Timer> scheduleRepeating(double interval, Task tick) override;
    [[nodiscard]] std::unique_ptr<Timer> scheduleOnce(double delay, Task fire) override;

    /// Like `scheduleOnce`, but cannot be cancelled.
    void callAfter(double delay, Task fire);

    [[nodiscard]] int fd() const noexcept;
    void runDue();

private:
    class Schedule;
    class Token;

    std::shared_ptr<Schedule> schedule_;
};

} // namespace tocca::platform::linux

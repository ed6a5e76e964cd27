#pragma once

#include "Platform/Timers.h"

#include <memory>

namespace tocca::platform::linux {

/// Timers that share one timer descriptor, set to the earliest of them: no wake-up but those asked for.
///
/// Whoever waits on the main thread calls `runDue` when `fd` is readable; a wait nested in a call works as well, except that
/// a repeating timer does not interrupt its own call.
/// Threads: main.
/// Errors: an interval under 100 µs counts as 100 µs.
class LinuxTimers : public Timers {
public:
    LinuxTimers();

    [[nodiscard]] std::unique_ptr<Timer> scheduleRepeating(double interval, Task tick) override;
    [[nodiscard]] std::unique_ptr<Timer> scheduleOnce(double delay, Task fire) override;

    /// Like `scheduleOnce`, without a way back.
    void callAfter(double delay, Task fire);

    [[nodiscard]] int fd() const noexcept;
    void runDue();

private:
    class Schedule;
    class Token;

    std::shared_ptr<Schedule> schedule_;
};

} // namespace tocca::platform::linux

#pragma once

#include "Platform/Linux/System/LinuxClock.h"
#include "Platform/Linux/System/Threads/LinuxMainQueue.h"
#include "Platform/Linux/System/Threads/LinuxSerialQueues.h"
#include "Platform/Linux/System/Threads/LinuxTimers.h"

#include <array>

#include <poll.h>

namespace tocca::platform::linux {

/// The Linux services around a main loop of three lines, for tests that need no Qt.
class PolledMachine {
public:
    MainQueue& mainQueue() { return mainQueue_; }

    Timers& timers() { return timers_; }

    Clock& clock() { return clock_; }

    SerialQueues& serialQueues() { return serialQueues_; }

    /// Waits once for at most `milliseconds` and runs what became due; returns whether anything woke it.
    bool turn(int milliseconds)
    {
        std::array<pollfd, 2> polled{{{.fd = mainQueue_.fd(), .events = POLLIN, .revents = 0},
                                      {.fd = timers_.fd(), .events = POLLIN, .revents = 0}}};
        if (::poll(polled.data(), polled.size(), milliseconds) <= 0) {
            return false;
        }
        if (polled[0].revents != 0) {
            mainQueue_.runReady();
        }
        if (polled[1].revents != 0) {
            timers_.runDue();
        }
        return true;
    }

    template <class Predicate>
    bool runUntil(Predicate predicate)
    {
        constexpr double kDeadline = 20.0; // seconds
        const double end = clock_.now() + kDeadline;
        while (!predicate()) {
            if (clock_.now() > end) {
                return false;
            }
            turn(1);
        }
        return true;
    }

private:
    LinuxClock clock_;
    LinuxTimers timers_;
    LinuxMainQueue mainQueue_{timers_};
    LinuxSerialQueues serialQueues_;
};

} // namespace tocca::platform::linux

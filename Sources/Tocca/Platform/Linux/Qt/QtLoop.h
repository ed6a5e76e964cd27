#pragma once

#include <QSocketNotifier>

namespace tocca::platform::linux {

class LinuxMainQueue;
class LinuxTimers;

/// Lets Qt's event loop serve the main queue and the timers.
///
/// Threads: main.
/// Lifetime: begins after the application object; ends before the queue and the timers.
class QtLoop {
public:
    QtLoop(LinuxMainQueue& queue, LinuxTimers& timers);

private:
    QSocketNotifier queueNotifier_;
    QSocketNotifier timersNotifier_;
};

} // namespace tocca::platform::linux

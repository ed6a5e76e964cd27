#include "Platform/Linux/Qt/QtLoop.h"

#include "Platform/Linux/System/Threads/LinuxMainQueue.h"
#include "Platform/Linux/System/Threads/LinuxTimers.h"

namespace tocca::platform::linux {

QtLoop::QtLoop(LinuxMainQueue& queue, LinuxTimers& timers)
    : queueNotifier_(queue.fd(), QSocketNotifier::Read)
    , timersNotifier_(timers.fd(), QSocketNotifier::Read)
{
    QObject::connect(&queueNotifier_, &QSocketNotifier::activated, &queueNotifier_,
                     [&queue] { queue.runReady(); });
    QObject::connect(&timersNotifier_, &QSocketNotifier::activated, &timersNotifier_,
                     [&timers] { timers.runDue(); });
}

} // namespace tocca::platform::linux

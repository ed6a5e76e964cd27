#pragma once

#include "Platform/Linux/Qt/QtLoop.h"
#include "Platform/Linux/System/LinuxClock.h"
#include "Platform/Linux/System/Threads/LinuxMainQueue.h"
#include "Platform/Linux/System/Threads/LinuxTimers.h"

#include <QCoreApplication>
#include <QEventLoop>

namespace tocca::platform::linux {

/// The Linux main queue and timers on the event loop of Qt.
class QtMachine {
public:
    MainQueue& mainQueue() { return queue_; }

    Timers& timers() { return timers_; }

    Clock& clock() { return clock_; }

    template <class Predicate>
    bool runUntil(Predicate predicate)
    {
        constexpr double kDeadline = 20.0; // seconds
        const double end = clock_.now() + kDeadline;
        const auto beat = timers_.scheduleRepeating(0.001, [] {});
        while (!predicate()) {
            if (clock_.now() > end) {
                return false;
            }
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        return true;
    }

private:
    /// The Qt application object, of which a process has one.
    static QCoreApplication& application()
    {
        static int argumentCount = 1;
        static char name[] = "tests";      // NOLINT(modernize-avoid-c-arrays)
        static char* arguments[] = {name}; // NOLINT(modernize-avoid-c-arrays)
        static QCoreApplication application(argumentCount, arguments);
        return application;
    }

    QCoreApplication& application_ = application();
    LinuxClock clock_;
    LinuxTimers timers_;
    LinuxMainQueue queue_{timers_};
    QtLoop loop_{queue_, timers_};
};

} // namespace tocca::platform::linux

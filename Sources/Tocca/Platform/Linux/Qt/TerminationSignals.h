#pragma once

#include "Platform/Linux/System/FileDescriptor.h"

#include <QSocketNotifier>

#include <memory>
#include <thread>

namespace tocca::platform::linux {

/// Makes SIGTERM, SIGINT and SIGHUP end Qt's event loop, and the process a second and a half later where the loop does not come to it:
/// a display server or a bus that hangs makes the main thread wait.
///
/// Lifetime: made on the main thread before any other thread starts, so that all threads leave the signals alone. The application object
/// starts one, hence the two steps.
class TerminationSignals {
public:
    /// Keeps the signals from ending the process at once.
    TerminationSignals();
    ~TerminationSignals();

    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

    /// Lets the event loop receive the signals. Order: after the application object; once.
    void attach();

private:
    void watch();

    FileDescriptor signals_;
    FileDescriptor wish_; // watcher -> main: the loop is to end
    FileDescriptor end_;  // main -> watcher: the process ends by itself
    std::unique_ptr<QSocketNotifier> notifier_;
    std::thread watcher_;
};

} // namespace tocca::platform::linux

#pragma once

#include "Platform/Linux/System/FileDescriptor.h"

#include <QSocketNotifier>

#include <memory>

namespace tocca::platform::linux {

/// Makes SIGTERM, SIGINT and SIGHUP end Qt's event loop instead of the process.
///
/// Lifetime: made on the main thread before any other thread starts, so that all threads leave the signals alone. The application object
/// starts one, hence the two steps.
class TerminationSignals {
public:
    /// Keeps the signals from ending the process.
    TerminationSignals();

    /// Lets the event loop receive the signals. Order: after the application object; once.
    void attach();

private:
    FileDescriptor descriptor_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace tocca::platform::linux

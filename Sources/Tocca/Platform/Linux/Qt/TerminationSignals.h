#pragma once

#include "Platform/Linux/System/FileDescriptor.h"

#include <QSocketNotifier>

#include <memory>

namespace tocca::platform::linux {

/// Makes SIGTERM, SIGINT and SIGHUP end the toolkit's event loop instead of the process.
///
/// Lifetime: made on the main thread before any other thread starts, so that all of them leave the signals alone. An application object
/// with windows starts one: then make this first and `attach` it afterwards.
class TerminationSignals {
public:
    /// Attaches itself when the application object is there already.
    TerminationSignals();

    /// Has the event loop look after the signals. Order: after the application object; once.
    void attach();

private:
    FileDescriptor descriptor_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace tocca::platform::linux

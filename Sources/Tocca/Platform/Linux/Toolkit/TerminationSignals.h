#pragma once

#include "Platform/Linux/System/FileDescriptor.h"

#include <QSocketNotifier>

#include <memory>

namespace tocca::platform::linux {

/// Makes SIGTERM, SIGINT and SIGHUP end the toolkit's event loop instead of the process.
///
/// Lifetime: made on the main thread before any other thread starts, so that all of them leave the signals alone.
class TerminationSignals {
public:
    TerminationSignals();

private:
    FileDescriptor descriptor_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace tocca::platform::linux

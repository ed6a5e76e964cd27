#pragma once

#include "Platform/Linux/Audio/ControlLoop.h"

#include <functional>
#include <memory>

namespace tocca::platform::linux {

/// Watches for the sockets of sound servers in the session's runtime directory, and calls when one appears.
///
/// Threads: control. Errors: without a runtime directory, or where it cannot be watched, it never calls.
class SocketWatch {
public:
    SocketWatch(ControlLoop& loop, std::function<void()> call);

private:
    void drain();
    void watchServerDirectory();

    const std::function<void()> call_;
    int descriptor_ = -1; // the watch's own
    std::unique_ptr<ControlWatch> watch_;
};

} // namespace tocca::platform::linux

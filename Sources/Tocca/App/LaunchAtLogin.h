#pragma once

#include "Support/Lifetime.h"
#include "Support/Published.h"

namespace tocca::platform {
struct Host;
}

namespace tocca::app {

/// Lets the program start with the session. The desktop keeps the registration; this only mirrors it.
/// Threads: main.
class LaunchAtLogin {
public:
    explicit LaunchAtLogin(platform::Host& host);
    LaunchAtLogin(const LaunchAtLogin&) = delete;
    LaunchAtLogin& operator=(const LaunchAtLogin&) = delete;

    /// The instance on the default host.
    static LaunchAtLogin& shared();

    Published<bool> isEnabled{false}; ///< as last seen or successfully set

    /// Asks the desktop and publishes the answer a moment later.
    void checkStatus();

    /// Registers the program, or takes it back, as `isEnabled` tells. Errors: prints a line and changes nothing.
    void toggle();

private:
    platform::Host& host_;
    Lifetime lifetime_;
};

} // namespace tocca::app

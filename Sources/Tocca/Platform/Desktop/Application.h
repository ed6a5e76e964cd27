#pragma once

#include <cstdint>

namespace tocca::platform {

/// Whether the desktop shows the program in task bar and switcher.
enum class ActivationPolicy : std::uint8_t { regular, accessory };

/// Told of the program's life by the desktop. Threads: main.
class ApplicationDelegate {
public:
    virtual ~ApplicationDelegate() = default;

    /// The event loop runs; called once.
    virtual void applicationDidFinishLaunching() = 0;

    /// The program was launched again while it runs. True when that is dealt with.
    virtual bool applicationShouldHandleReopen(bool hasVisibleWindows) = 0;
    [[nodiscard]] virtual bool applicationShouldTerminateAfterLastWindowClosed() = 0;
};

/// The running program, as the desktop knows it: one instance a session. Threads: main.
class Application {
public:
    virtual ~Application() = default;

    /// Runs the event loop until the program is to end and returns its exit status. When the session has an instance already, that one
    /// is told to reopen, and this returns at once without ever calling `delegate`.
    virtual int run(ApplicationDelegate& delegate) = 0;

    virtual void setActivationPolicy(ActivationPolicy policy) = 0;

    /// Brings the program's windows before those of others.
    virtual void activate() = 0;

    /// Ends the event loop.
    virtual void terminate() = 0;
};

} // namespace tocca::platform

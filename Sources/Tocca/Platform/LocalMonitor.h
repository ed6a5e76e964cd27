#pragma once

#include "Platform/EventTap.h"
#include "Support/Subscription.h"

namespace tocca::platform {

/// Installs monitors of keys that are typed into the program's own windows.
class LocalMonitors {
public:
    virtual ~LocalMonitors() = default;

    /// Shows `handler` every event of `mask` that reaches one of the program's windows; the event goes on untouched.
    /// The end of the token ends that.
    /// Threads: main, the handler included.
    [[nodiscard]] virtual Subscription add(EventMask mask, EventHandler handler) = 0;
};

} // namespace tocca::platform

#pragma once

#include "Platform/EventTap.h"

#include <memory>

namespace tocca::platform {

/// An installed monitor of the program's own windows; destroying it removes it.
class LocalMonitor {
public:
    virtual ~LocalMonitor() = default;
};

/// Installs monitors of keys that are typed into the program's own windows.
class LocalMonitors {
public:
    virtual ~LocalMonitors() = default;

    /// Shows `handler` every event of `mask` that reaches one of the program's windows; the event goes on untouched.
    /// Threads: main, the handler included.
    [[nodiscard]] virtual std::unique_ptr<LocalMonitor> add(EventMask mask, EventHandler handler) = 0;
};

} // namespace tocca::platform

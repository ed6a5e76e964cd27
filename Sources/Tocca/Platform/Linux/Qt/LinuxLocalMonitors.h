#pragma once

#include "Platform/LocalMonitor.h"
#include "Support/Listeners.h"

#include <utility>

namespace tocca::platform::linux {

/// The local monitors, which are shown what the program's own windows receive.
///
/// Threads: main.
/// Order: monitors are called in the order they were added; one added during a delivery first hears the next event.
/// Lifetime: a monitor may outlive this object.
class LinuxLocalMonitors : public LocalMonitors {
public:
    [[nodiscard]] Subscription add(EventMask mask, EventHandler handler) override
    {
        return listeners_.add([mask, handler = std::move(handler)](EventType type, const InputEvent& event) {
            if ((mask & maskOf(type)) != 0) {
                handler(type, event);
            }
        });
    }

    /// Shows the monitors an event that reached one of the windows.
    void deliver(EventType type, const InputEvent& event) { listeners_.call(type, event); }

private:
    Listeners<EventType, const InputEvent&> listeners_;
};

} // namespace tocca::platform::linux

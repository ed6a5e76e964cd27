#pragma once

#include "Platform/LocalMonitor.h"

#include <memory>
#include <vector>

namespace tocca::platform::linux {

/// Passes what the program's own windows receive on to the monitors.
///
/// Threads: main.
/// Order: monitors are called in the order they were added; one added during a delivery first hears the next event.
/// Lifetime: a monitor may outlive this object.
class LinuxLocalMonitors : public LocalMonitors {
public:
    LinuxLocalMonitors();

    [[nodiscard]] std::unique_ptr<LocalMonitor> add(EventMask mask, EventHandler handler) override;

    /// Shows the monitors an event that reached one of the windows.
    void deliver(EventType type, const InputEvent& event);

private:
    struct Entry {
        EventMask mask;
        EventHandler handler;
    };

    using Entries = std::vector<std::shared_ptr<Entry>>;
    class Token;

    std::shared_ptr<Entries> entries_;
};

} // namespace tocca::platform::linux

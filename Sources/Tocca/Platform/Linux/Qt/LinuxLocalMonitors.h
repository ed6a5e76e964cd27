#pragma once

#include "Platform/LocalMonitor.h"

#include <memory>
#include <vector>

namespace tocca::platform::linux {

/// The local monitors, which are shown what the program's own windows receive.
///
/// Threads: main.
/// Order: monitors are called in the order they were added; one added during a delivery first hears the next event.
/// Lifetime: a monitor may outlive this object.
class LinuxLocalMonitors : public LocalMonitors {
public:
    [[nodiscard]] std::unique_ptr<LocalMonitor> add(EventMask mask, EventHandler handler) override;

    /// Shows the monitors an event that reached one of the windows.
    void deliver(EventType type, const InputEvent& event);

private:
    struct Entry {
        EventMask mask;
        EventHandler handler;
    };

    struct Token;

    std::vector<std::weak_ptr<Entry>> entries_; // each is its token's
};

} // namespace tocca::platform::linux

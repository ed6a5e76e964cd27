#include "Platform/Linux/Qt/LinuxLocalMonitors.h"

#include <utility>

namespace tocca::platform::linux {

struct LinuxLocalMonitors::Token final : LocalMonitor {
    std::shared_ptr<Entry> entry;
};

std::unique_ptr<LocalMonitor> LinuxLocalMonitors::add(EventMask mask, EventHandler handler)
{
    auto token = std::make_unique<Token>();
    token->entry = std::make_shared<Entry>(Entry{mask, std::move(handler)});
    entries_.push_back(token->entry);
    return token;
}

void LinuxLocalMonitors::deliver(EventType type, const InputEvent& event)
{
    std::erase_if(entries_, [](const auto& entry) { return entry.expired(); });
    const auto present = entries_; // a handler may add and end monitors
    for (const auto& monitor : present) {
        if (const auto entry = monitor.lock(); entry && (entry->mask & maskOf(type)) != 0) {
            entry->handler(type, event);
        }
    }
}

} // namespace tocca::platform::linux

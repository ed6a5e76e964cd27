#include "Platform/Linux/Qt/LinuxLocalMonitors.h"

#include <algorithm>
#include <utility>

namespace tocca::platform::linux {

class LinuxLocalMonitors::Token final : public LocalMonitor {
public:
    Token(std::weak_ptr<Entries> entries, std::shared_ptr<Entry> entry) noexcept
        : entries_(std::move(entries))
        , entry_(std::move(entry))
    {}

    Token(const Token&) = delete;
    Token& operator=(const Token&) = delete;

    ~Token() override
    {
        entry_->mask = 0; // a delivery under way holds a copy of the list
        if (const auto entries = entries_.lock()) {
            std::erase(*entries, entry_);
        }
    }

private:
    std::weak_ptr<Entries> entries_;
    std::shared_ptr<Entry> entry_;
};

LinuxLocalMonitors::LinuxLocalMonitors()
    : entries_(std::make_shared<Entries>())
{}

std::unique_ptr<LocalMonitor> LinuxLocalMonitors::add(EventMask mask, EventHandler handler)
{
    auto entry = std::make_shared<Entry>(Entry{mask, std::move(handler)});
    entries_->push_back(entry);
    return std::make_unique<Token>(entries_, std::move(entry));
}

void LinuxLocalMonitors::deliver(EventType type, const InputEvent& event)
{
    const Entries present = *entries_;
    for (const auto& entry : present) {
        if ((entry->mask & maskOf(type)) != 0) {
            entry->handler(type, event);
        }
    }
}

} // namespace tocca::platform::linux

#pragma once

#include "Platform/EventTap.h"
#include "Platform/LocalMonitor.h"
#include "Platform/Memory/MemoryThreads.h"
#include "Platform/Memory/VirtualTime.h"
#include "Support/Listeners.h"

#include <memory>
#include <utility>
#include <vector>

namespace tocca::platform::memory {

/// The session's input: what a person does reaches every attached and enabled tap.
class MemoryEventTaps : public EventTaps {
public:
    MemoryEventTaps(VirtualTime& time, MemoryThreads& threads);

    [[nodiscard]] std::unique_ptr<EventTap> create(EventMask mask, EventHandler handler) override;

    /// Makes `create` fail from now on.
    void setUnavailable(bool isUnavailable) noexcept { isUnavailable_ = isUnavailable; }

    void press(std::uint16_t keyCode) { send(EventType::KeyDown, {.keyCode = keyCode}); }

    void repeat(std::uint16_t keyCode)
    {
        send(EventType::KeyDown, {.keyCode = keyCode, .isAutorepeat = true});
    }

    void release(std::uint16_t keyCode) { send(EventType::KeyUp, {.keyCode = keyCode}); }

    void changeFlags(std::uint16_t keyCode, std::uint64_t flags)
    {
        send(EventType::FlagsChanged, {.keyCode = keyCode, .flags = flags});
    }

    void scroll(double deltaY) { send(EventType::ScrollWheel, {.scrollDeltaY = deltaY}); }

    /// Delivers any event, stamped with the present time. Disabled notices also disable the taps.
    void send(EventType type, InputEvent event = {});

    /// How many taps are attached and enabled.
    [[nodiscard]] int listeningCount() const noexcept;

    /// The mask of the tap made last.
    [[nodiscard]] EventMask lastMask() const noexcept { return lastMask_; }

private:
    struct State {
        EventMask mask = 0;
        EventHandler handler;
        bool isEnabled = false;
        std::shared_ptr<MemoryThreads::State> thread;
    };
    class Tap;
    class Source;

    VirtualTime& time_;
    MemoryThreads& threads_;
    bool isUnavailable_ = false;
    EventMask lastMask_ = 0;
    std::vector<std::weak_ptr<State>> states_;
};

/// Keys typed into the program's own windows.
class MemoryLocalMonitors : public LocalMonitors {
public:
    [[nodiscard]] Subscription add(EventMask mask, EventHandler handler) override
    {
        return listeners_.add([mask, handler = std::move(handler)](EventType type, const InputEvent& event) {
            if ((mask & maskOf(type)) != 0) {
                handler(type, event);
            }
        });
    }

    /// Shows an event to every installed monitor whose mask has its type.
    void send(EventType type, const InputEvent& event) { listeners_.call(type, event); }

    [[nodiscard]] std::size_t installedCount() const noexcept { return listeners_.count(); }

private:
    Listeners<EventType, const InputEvent&> listeners_;
};

} // namespace tocca::platform::memory

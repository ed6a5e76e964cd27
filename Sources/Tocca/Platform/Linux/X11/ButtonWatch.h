#pragma once

#include "Platform/Linux/X11/XConnection.h"

#include <xcb/xcb.h>

#include <cstdint>
#include <functional>
#include <memory>

namespace tocca::platform::linux {

/// Follows, on a connection of its own, what the main buttons of the pointer do anywhere on the screen, whoever has grabbed it.
///
/// Threads: one at a time; the observer is called from inside `serve`.
class ButtonWatch {
public:
    enum class Action : std::uint8_t { pressed, released };

    /// Hears which window directly on the root the pointer was over; the root's answer comes a moment after the event.
    using Observer = std::function<void(Action action, xcb_window_t over)>;

    /// Waits for the server; null when there is none or it cannot tell.
    [[nodiscard]] static std::unique_ptr<ButtonWatch> open(Observer observer);

    ButtonWatch(const ButtonWatch&) = delete;
    ButtonWatch& operator=(const ButtonWatch&) = delete;

    /// Takes in what the server has sent; whenever `fd` is readable. False when the server is lost.
    bool serve();

    [[nodiscard]] int fd() const noexcept { return connection_.fd(); }

private:
    ButtonWatch(XConnection connection, std::uint8_t opcode, Observer observer);

    const XConnection connection_;
    const std::uint8_t opcode_;
    const Observer observer_;
};

} // namespace tocca::platform::linux

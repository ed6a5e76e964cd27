#pragma once

#include "Platform/Linux/X11/XReply.h"

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace tocca::platform::linux {

/// A connection of its own to the X server that DISPLAY names, and to the screen it names there.
///
/// Threads: one at a time.
/// Errors: a lost server is a state (`isAlive`), and every request on a lost connection does nothing.
class XConnection {
public:
    /// Connects, which waits for the server; nothing when there is none.
    [[nodiscard]] static std::optional<XConnection> open();

    [[nodiscard]] xcb_connection_t* get() const noexcept { return connection_.get(); }

    [[nodiscard]] const xcb_screen_t& screen() const noexcept { return *screen_; }

    [[nodiscard]] xcb_window_t root() const noexcept { return screen_->root; }

    [[nodiscard]] int screenNumber() const noexcept { return screenNumber_; }

    [[nodiscard]] int fd() const noexcept { return xcb_get_file_descriptor(connection_.get()); }

    [[nodiscard]] bool isAlive() const noexcept { return xcb_connection_has_error(connection_.get()) == 0; }

    /// The next event, for which the server is asked once if none is there; null when there is none.
    [[nodiscard]] XReply<xcb_generic_event_t> nextEvent() const noexcept
    {
        return XReply<xcb_generic_event_t>(xcb_poll_for_event(connection_.get()));
    }

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const noexcept { xcb_disconnect(connection); }
    };

    XConnection(xcb_connection_t* connection, int screenNumber) noexcept;

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    int screenNumber_;
    const xcb_screen_t* screen_ = nullptr;
};

/// What the server calls `name`, which it is asked and waited for; none when it is lost.
[[nodiscard]] xcb_atom_t atomOf(xcb_connection_t* connection, std::string_view name);

/// What happened, whether the server says so or another client does in its place.
[[nodiscard]] inline std::uint8_t typeOf(const xcb_generic_event_t& event) noexcept
{
    constexpr std::uint8_t kSentByClient = 0x80;
    return static_cast<std::uint8_t>(event.response_type & ~kSentByClient);
}

} // namespace tocca::platform::linux

#pragma once

#include "Platform/Linux/X11/Input/KeyRoles.h"
#include "Platform/Linux/X11/Input/KeyboardState.h"
#include "Platform/Linux/X11/XConnection.h"
#include "Support/Result.h"

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

namespace tocca::platform::linux {

/// Why raw events cannot be had from an X server.
enum class XInputObstacle { NoServer, NoRawEvents };

/// What an `XInputConnection` is asked to hear.
struct XInputSelection {
    bool wantsKeys = false;
    bool wantsButtons = false;
};

/// An `XConnection` for raw input events. Threads and errors: as there.
class XInputConnection {
public:
    /// Connects and makes sure of XInput 2.1, below which keys stay hidden while another client grabs the keyboard.
    [[nodiscard]] static Result<std::unique_ptr<XInputConnection>, XInputObstacle> open();

    /// The keyboard at one point of the event stream.
    struct Snapshot {
        KeyboardState::Keys down;
        bool isLocked = false;
        KeyRoles roles;
        std::uint32_t sequence = 0; ///< events with a lower sequence number are accounted for
    };

    /// Chooses what is heard from now on. Waits for nothing.
    void select(XInputSelection selection);

    /// Asks for the keyboard's state and waits for the answer; nothing when the server is lost.
    [[nodiscard]] std::optional<Snapshot> snapshot();

    /// Asks for the layout without waiting; a question under way is asked again when it is answered.
    void askLayout();

    /// The answer to `askLayout`, once, when it is there.
    [[nodiscard]] std::optional<KeyRoles> takeLayout();

    /// The next event read from the server, which is first asked for more when `mayRead`; null when there is none.
    [[nodiscard]] XReply<xcb_generic_event_t> nextEvent(bool mayRead) noexcept;

    /// Throws away what the server has sent. Returns whether it is still there.
    [[nodiscard]] bool drain() noexcept;

    [[nodiscard]] bool isAlive() const noexcept { return connection_.isAlive(); }

    [[nodiscard]] int fd() const noexcept { return connection_.fd(); }

    [[nodiscard]] std::uint8_t inputOpcode() const noexcept { return inputOpcode_; }

    [[nodiscard]] std::uint8_t keyboardEvent() const noexcept { return keyboardEvent_; }

private:
    struct LayoutQuestion {
        xcb_get_keyboard_mapping_cookie_t keysyms;
        xcb_get_modifier_mapping_cookie_t modifiers;
    };

    explicit XInputConnection(XConnection connection) noexcept
        : connection_(std::move(connection))
    {}

    [[nodiscard]] bool hasRawEvents();
    [[nodiscard]] LayoutQuestion sendLayoutQuestion();
    [[nodiscard]] KeyRoles rolesFrom(const xcb_get_keyboard_mapping_reply_t* keysyms,
                                     const xcb_get_modifier_mapping_reply_t* modifiers) const;

    const XConnection connection_;
    std::uint8_t inputOpcode_ = 0;
    std::uint8_t keyboardEvent_ = 0;
    std::optional<LayoutQuestion> question_;
    XReply<xcb_get_keyboard_mapping_reply_t> keysyms_; // the first half of the answer
    bool isLayoutStale_ = false;
};

} // namespace tocca::platform::linux

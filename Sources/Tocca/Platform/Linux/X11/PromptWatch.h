#pragma once

#include "Platform/Linux/X11/WindowFacts.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>

namespace tocca::platform::linux {

/// Follows whether a lock screen or a password prompt has the keyboard.
///
/// One has it when its window is active or focused; when it covers the others without asking the window manager, as lockers do;
/// or when it is open while somebody has grabbed the keyboard, for the server does not tell who.
/// Threads: one at a time. Lifetime: as `WindowInquiry`.
class PromptWatch {
public:
    /// Called on every change, and not before the first one: nobody is taken to have the keyboard at first.
    using Observer = std::function<void(bool isPrompting)>;

    PromptWatch(xcb_connection_t* connection, xcb_window_t root, XQuestions& questions,
                const WindowInquiry& inquiry, Observer observer);
    PromptWatch(const PromptWatch&) = delete;
    PromptWatch& operator=(const PromptWatch&) = delete;

    /// The events of the root window that `handle` needs.
    static constexpr std::uint32_t kRootEvents =
        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_FOCUS_CHANGE;

    /// Finds out how things are; once `kRootEvents` are selected.
    void begin();

    void handle(const xcb_generic_event_t& event);

    /// To be told who is in front.
    void setFront(const std::optional<WindowFacts>& front);

private:
    struct Cover {
        std::uint64_t number = 0; // tells a window from a later one to which the server gives the same name
        bool isPrompt = false;
    };

    void askFocus();
    void focusFound(xcb_window_t window);
    void focusChanged(std::uint8_t mode);
    void coverAppeared(xcb_window_t window);
    void coverVanished(xcb_window_t window);
    void askCovers();
    void askOpenPrompts();
    void judge();

    xcb_connection_t* const connection_;
    const xcb_window_t root_;
    XQuestions& questions_;
    const WindowInquiry& inquiry_;
    const Observer observer_;

    xcb_window_t focus_ = XCB_WINDOW_NONE; // whose focus events are heard
    std::uint64_t nextNumber_ = 0;
    std::uint64_t grab_ = 0;               // of the last grab; answers about earlier ones come too late
    std::map<xcb_window_t, Cover> covers_; // mapped past the window manager
    bool isFrontPrompt_ = false;
    bool isFocusPrompt_ = false;
    bool isGrabbed_ = false;
    bool isPromptOpen_ = false; // as found at the beginning of the grab
    bool isPrompting_ = false;
};

} // namespace tocca::platform::linux

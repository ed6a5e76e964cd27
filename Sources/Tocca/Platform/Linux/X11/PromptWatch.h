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
/// or when it is open while somebody has grabbed the keyboard, for the server does not tell who. Whoever has grabbed it while somebody
/// unknown covers the whole screen is a locker.
/// Threads: one at a time. Lifetime: as `WindowInquiry`.
class PromptWatch {
public:
    /// Called on every change, and not before the first one: nobody is taken to have the keyboard at first.
    using Observer = std::function<void(bool isPrompting)>;

    struct Observers {
        Observer prompting;
        Observer shellFocused; ///< GNOME's shell has the focus itself: for its overview, or for a password
    };

    PromptWatch(xcb_connection_t* connection, const xcb_screen_t& screen, XQuestions& questions,
                const WindowInquiry& inquiry, Observers observers);
    PromptWatch(const PromptWatch&) = delete;
    PromptWatch& operator=(const PromptWatch&) = delete;

    /// The events of the root window that `handle` needs.
    static constexpr std::uint32_t kRootEvents =
        XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_FOCUS_CHANGE;

    /// Finds out how things are; once `kRootEvents` are selected.
    void begin();

    void handle(const xcb_generic_event_t& event);

    /// To be told who is in front.
    void setFront(const std::optional<WindowFacts>& front);

private:
    struct Cover {
        std::uint64_t number = 0; // tells a window from a later one to which the server gives the same name
        bool isPrompt = false;
        bool isSeen = false;  // windows for input alone cover nothing
        bool isWhole = false; // as large as the screen
    };

    void askFocus();
    void focusFound(xcb_window_t window);
    void focusChanged(std::uint8_t mode);
    void coverAppeared(xcb_window_t window);
    void coverPlaced(xcb_window_t window, int x, int y, int width, int height);
    Cover* cover(xcb_window_t window, std::uint64_t number);
    void setShellFocused(bool isFocused);
    void coverVanished(xcb_window_t window);
    void askCovers();
    void askOpenPrompts();
    void judge();

    xcb_connection_t* const connection_;
    const xcb_window_t root_;
    XQuestions& questions_;
    const WindowInquiry& inquiry_;
    const Observers observers_;

    int screenWidth_; // pixels
    int screenHeight_;

    xcb_window_t focus_ = XCB_WINDOW_NONE; // whose focus events are heard
    std::uint64_t nextNumber_ = 0;
    std::uint64_t grab_ = 0;               // of the last grab; answers about earlier ones come too late
    std::map<xcb_window_t, Cover> covers_; // mapped past the window manager
    bool isFrontPrompt_ = false;
    bool isFocusPrompt_ = false;
    bool isGrabbed_ = false;
    bool isPromptOpen_ = false; // as found at the beginning of the grab
    bool isPrompting_ = false;
    bool isShellFocused_ = false;
};

} // namespace tocca::platform::linux

#pragma once

#include "Platform/Linux/X11/WindowFacts.h"
#include "Platform/Linux/X11/XConnection.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace tocca::platform::linux {

/// Follows which window the window manager calls active. Windows of this process that no window manager knows, such as a popover with the
/// keyboard, change nothing: who was in front still is.
///
/// Threads: one at a time. Lifetime: as `WindowInquiry`.
class FrontWindow {
public:
    /// Hears of a window of which nothing is known when none is active, and nothing when no window manager tells.
    using Observer = std::function<void(const std::optional<WindowFacts>&)>;

    FrontWindow(const XConnection& connection, XQuestions& questions, const WindowInquiry& inquiry,
                Observer observer);
    FrontWindow(const FrontWindow&) = delete;
    FrontWindow& operator=(const FrontWindow&) = delete;

    /// Asks anew; the observer hears the answer.
    void look();

    /// To be told of every change of the root window's properties.
    void propertyChanged(xcb_atom_t property);

private:
    void found(xcb_window_t window);

    /// Answers unless `window` is such a one of this process, or somebody has looked again.
    void ask(xcb_window_t window, std::function<void(const WindowFacts&)> answer);

    xcb_connection_t* const connection_;
    const xcb_window_t root_;
    XQuestions& questions_;
    const WindowInquiry& inquiry_;
    const Observer observer_;
    std::uint64_t look_ = 0; // answers to earlier looks come too late
};

} // namespace tocca::platform::linux

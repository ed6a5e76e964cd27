#pragma once

#include "Platform/Linux/X11/WindowFacts.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace tocca::platform::linux {

/// Follows which window the window manager calls active.
///
/// Threads: one at a time. Lifetime: as `WindowInquiry`.
class FrontWindow {
public:
    /// Hears of a window of which nothing is known when none is active, and nothing when no window manager tells.
    using Observer = std::function<void(const std::optional<WindowFacts>&)>;

    FrontWindow(xcb_window_t root, XQuestions& questions, const WindowInquiry& inquiry, Observer observer);
    FrontWindow(const FrontWindow&) = delete;
    FrontWindow& operator=(const FrontWindow&) = delete;

    /// Asks anew; the observer hears the answer.
    void look();

    /// To be told of every change of the root window's properties.
    void propertyChanged(xcb_atom_t property);

private:
    void found(xcb_window_t window);

    const xcb_window_t root_;
    XQuestions& questions_;
    const WindowInquiry& inquiry_;
    const Observer observer_;
    std::uint64_t look_ = 0; // answers to earlier looks come too late
};

} // namespace tocca::platform::linux

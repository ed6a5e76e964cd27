#pragma once

#include "Platform/Linux/X11/SelectionWatch.h"
#include "Platform/Linux/X11/WindowRequests.h"
#include "Support/Listeners.h"

#include <QSocketNotifier>

#include <memory>
#include <optional>

class QWindow;

namespace tocca::platform::linux {

/// The X11 desktop that the toolkit's windows are on, if they are.
///
/// Threads: main. Everything is looked up when it is first asked for, so that nobody needs a display before.
class XDesktop {
public:
    /// Whether the toolkit talks to an X server.
    [[nodiscard]] static bool isPresent();

    /// Nothing on other desktops.
    [[nodiscard]] static std::optional<WindowRequests> requests();

    /// Makes the toolkit's own window for `window` if need be, and names the program in it.
    static void adopt(QWindow& window);

    /// Whether windows are composed, so that transparent ones can be shown.
    [[nodiscard]] bool isComposed();

    /// The window of the tray that takes in icons by embedding them, `XCB_NONE` where there is none.
    [[nodiscard]] xcb_window_t trayOwner();

    /// Calls `handler` when the answer of `isComposed` or `trayOwner` may have changed.
    [[nodiscard]] Subscription onChange(std::function<void()> handler);

private:
    void watch();

    bool isWatched_ = false;
    std::unique_ptr<SelectionWatch> selections_;
    std::unique_ptr<QSocketNotifier> notifier_;
    Listeners listeners_;
};

} // namespace tocca::platform::linux

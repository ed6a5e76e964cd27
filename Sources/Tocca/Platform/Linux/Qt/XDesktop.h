#pragma once

#include "Platform/Linux/X11/SelectionWatch.h"
#include "Platform/Linux/X11/WindowRequests.h"
#include "Support/Listeners.h"

#include <QSocketNotifier>

#include <memory>
#include <optional>

class QWindow;

namespace tocca::platform::linux {

/// The X11 desktop on which Qt shows the windows, if it does.
///
/// Nothing is asked of the X server before somebody asks this object.
/// Threads: main.
class XDesktop {
public:
    /// Whether Qt talks to an X server.
    [[nodiscard]] static bool isPresent();

    /// Requests to the window manager; nothing on other desktops.
    [[nodiscard]] static std::optional<WindowRequests> requests();

    /// Creates the X window of `window` if it has none yet, and names the program in it.
    static void adopt(QWindow& window);

    /// Whether a compositor runs, so that transparent windows can be shown.
    [[nodiscard]] bool isComposed();

    /// The window of the tray that embeds icons; `XCB_NONE` where there is none.
    [[nodiscard]] xcb_window_t trayOwner();

    /// Calls `handler` when `isComposed` or `trayOwner` may have changed.
    [[nodiscard]] Subscription onChange(std::function<void()> handler);

private:
    void watch();

    bool isWatched_ = false;
    std::unique_ptr<SelectionWatch> selections_;
    std::unique_ptr<QSocketNotifier> notifier_;
    Listeners<> listeners_;
};

} // namespace tocca::platform::linux

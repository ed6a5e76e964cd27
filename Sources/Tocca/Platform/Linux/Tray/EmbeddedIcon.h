#pragma once

#include "Platform/Linux/X11/XConnection.h"

#include <xcb/xcb.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tocca::platform::linux {

/// The tray icon as a window inside an X11 tray, on a connection of its own to the X server that DISPLAY names.
///
/// Threads: one at a time; the observers are called from inside `serve`.
/// Units: device pixels.
class EmbeddedIcon {
public:
    /// What the icon looks like on a square of this size: rows of ARGB words, premultiplied.
    using Painter = std::function<std::vector<std::uint32_t>(int size)>;

    struct Place {
        int x = 0; ///< on the screen
        int y = 0;
        int width = 0;
        int height = 0;
    };

    struct Observers {
        std::function<void()> clicked;
        std::function<void()> menuRequested;
    };

    /// Asks the tray whose window is `tray` to take the icon in, and waits for the server meanwhile; null when there is none.
    [[nodiscard]] static std::unique_ptr<EmbeddedIcon> dock(xcb_window_t tray, Painter painter,
                                                            Observers observers);

    EmbeddedIcon(const EmbeddedIcon&) = delete;
    EmbeddedIcon& operator=(const EmbeddedIcon&) = delete;

    /// Draws the icon anew.
    void repaint();

    /// Nothing until the tray shows the icon.
    [[nodiscard]] std::optional<Place> place() const;

    /// Takes in what the server has sent; whenever `fd` is readable. False when the server or the tray is lost.
    bool serve();

    [[nodiscard]] int fd() const noexcept { return connection_.fd(); }

private:
    static constexpr int kFirstSize = 24; // until the tray gives the icon its own

    /// What the tray draws its icons with.
    struct Surface {
        xcb_visualid_t visual = 0;
        std::uint8_t depth = 0;
    };

    EmbeddedIcon(XConnection connection, Painter painter, Observers observers);

    void create(xcb_window_t tray);
    [[nodiscard]] Surface surfaceOf(xcb_window_t tray) const;
    void handle(const xcb_generic_event_t& event);

    const XConnection connection_;
    const Painter painter_;
    const Observers observers_;
    xcb_window_t window_ = XCB_NONE;
    xcb_gcontext_t context_ = XCB_NONE;
    Surface surface_;
    int width_ = kFirstSize;
    int height_ = kFirstSize;
    bool isShown_ = false;
    bool isLost_ = false;
};

} // namespace tocca::platform::linux

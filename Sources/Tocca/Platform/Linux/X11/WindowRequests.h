#pragma once

#include "Platform/Linux/X11/XConnection.h"

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tocca::platform::linux {

/// What programs ask of an X11 window manager about windows, on a connection that is not ours.
///
/// Threads: the connection's. Errors: none; a window manager may refuse anything.
class WindowRequests {
public:
    explicit WindowRequests(xcb_connection_t* connection) noexcept
        : connection_(connection)
        , root_(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root)
    {}

    /// Names the program that the window belongs to, for the desktop's own records.
    void setClass(xcb_window_t window, std::string_view instance, std::string_view className);

    /// A part of the screen. Units: pixels.
    struct Area {
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
    };

    /// The monitor whose top left corner is there; nothing when there is none.
    [[nodiscard]] std::optional<Area> monitorAt(int x, int y);

    /// The desktop's panel at a point; nothing when there is none.
    [[nodiscard]] std::optional<Area> dockAt(int x, int y);

    /// The window that has the keyboard.
    [[nodiscard]] xcb_window_t keyboard();

    /// Gives the keyboard to a window, past the window manager. Does nothing where the window cannot have it.
    void giveKeyboard(xcb_window_t window);

    /// Moves a window that no window manager has a say in.
    void place(xcb_window_t window, const Area& area);

    /// Before it is shown: the window is to have no shadow.
    void makeShadowless(xcb_window_t window);

    /// Brings a window that is shown, if on another desktop, to the one that the person is on.
    void bringToCurrentDesktop(xcb_window_t window);

    /// Brings the window to the front with the keyboard, as the person's own wish.
    void activate(xcb_window_t window);

    void minimise(xcb_window_t window);

    /// The ordinary windows that are to be seen on the current desktop, lowest first, but for those of the process `ownId`.
    [[nodiscard]] std::vector<xcb_window_t> ordinaryWindows(std::uint32_t ownId);

    /// Whether a button of the pointer is down, wherever it is.
    [[nodiscard]] bool isButtonDown();

    /// Whether the window is still managed.
    [[nodiscard]] bool isThere(xcb_window_t window);

private:
    [[nodiscard]] xcb_atom_t atom(std::string_view name) const { return atomOf(connection_, name); }

    [[nodiscard]] std::vector<std::uint32_t> words(xcb_window_t window, std::string_view property);
    void setWords(xcb_window_t window, std::string_view property, xcb_atom_t type,
                  const std::vector<std::uint32_t>& values);
    void tellRoot(xcb_window_t window, std::string_view message, const std::vector<std::uint32_t>& values);
    [[nodiscard]] bool isOrdinary(xcb_window_t window);

    xcb_connection_t* const connection_;
    const xcb_window_t root_;
};

} // namespace tocca::platform::linux

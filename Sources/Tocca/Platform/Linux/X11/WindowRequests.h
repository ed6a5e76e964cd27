#pragma once

#include "Platform/Linux/X11/XConnection.h"

#include <xcb/xcb.h>

#include <cstdint>
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

    /// Before it is shown: the window is to be on every desktop, absent from task bar and switcher, and without a shadow.
    void makeOverlay(xcb_window_t window);

    /// Lets everything that the pointer does pass through a window that is shown. Asked for before, some window managers overlook it and
    /// keep what passes through in the frame that they have put around the window.
    void passInputThrough(xcb_window_t window);

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

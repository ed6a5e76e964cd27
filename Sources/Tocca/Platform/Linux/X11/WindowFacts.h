#pragma once

#include "Platform/Linux/X11/XQuestions.h"

#include <xcb/xcb.h>

#include <cstdint>
#include <functional>
#include <string>

namespace tocca::platform::linux {

/// What an X window tells about the program that it belongs to; what is not known is empty or 0.
struct WindowFacts {
    std::string instance;         ///< first part of WM_CLASS
    std::string className;        ///< second part of WM_CLASS
    std::string gtkApplicationId; ///< _GTK_APPLICATION_ID
    std::string kdeDesktopFile;   ///< _KDE_NET_WM_DESKTOP_FILE
    std::uint32_t process = 0;    ///< of the client, as the server sees it, else _NET_WM_PID
};

/// Asks an X server about windows without ever waiting for it.
///
/// Threads: one at a time. Lifetime: the connection and `questions` outlive it, and it outlives the answers.
class WindowInquiry {
public:
    WindowInquiry(xcb_connection_t* connection, XQuestions& questions) noexcept
        : connection_(connection)
        , questions_(questions)
    {}

    WindowInquiry(const WindowInquiry&) = delete;
    WindowInquiry& operator=(const WindowInquiry&) = delete;

    /// Learns what the server calls things, and calls `ready` when it may be asked; before any other member.
    void prepare(std::function<void()> ready);

    /// Calls `answer` with what is known of `window`, which need not exist.
    void ask(xcb_window_t window, std::function<void(const WindowFacts&)> answer) const;

    [[nodiscard]] xcb_atom_t activeWindow() const noexcept { return activeWindow_; }

    [[nodiscard]] xcb_atom_t clientList() const noexcept { return clientList_; }

private:
    void askVersion(std::function<void()> ready);

    xcb_connection_t* const connection_;
    XQuestions& questions_;
    bool hasClientIds_ = false;
    xcb_atom_t activeWindow_ = XCB_ATOM_NONE;
    xcb_atom_t clientList_ = XCB_ATOM_NONE;
    xcb_atom_t processId_ = XCB_ATOM_NONE;
    xcb_atom_t gtkApplicationId_ = XCB_ATOM_NONE;
    xcb_atom_t kdeDesktopFile_ = XCB_ATOM_NONE;
};

} // namespace tocca::platform::linux

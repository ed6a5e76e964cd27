#pragma once

#include "Instruments/Process.h"

#include <xcb/xcb.h>

#include <memory>
#include <string>

namespace tocca::instruments {

/// An X server of a test's own, which DISPLAY names for as long as it lives; no Wayland compositor is to be seen.
class XServer {
public:
    XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;
    ~XServer();

    /// Ends the server without a farewell.
    void kill();

    /// Makes the server answer nobody until it is told to go on.
    void pause();
    void goOn();

    /// Starts another one in its place, on the same display.
    void start();

    /// Gives the keyboard a layout option, as people do in their settings; "" for none.
    static void setLayoutOption(const std::string& option);

    /// Another client that takes the keyboard for itself, as menus do.
    class KeyboardGrab {
    public:
        KeyboardGrab();
        KeyboardGrab(const KeyboardGrab&) = delete;
        KeyboardGrab& operator=(const KeyboardGrab&) = delete;

        ~KeyboardGrab() { xcb_disconnect(connection_); }

        [[nodiscard]] bool isActive() const { return isActive_; }

    private:
        xcb_connection_t* connection_;
        bool isActive_ = false;
    };

private:
    std::unique_ptr<Process> process_;
};

} // namespace tocca::instruments

#include "Platform/Linux/X11/XConnection.h"

namespace tocca::platform::linux {

std::optional<XConnection> XConnection::open()
{
    int screenNumber = 0;
    xcb_connection_t* const connection = xcb_connect(nullptr, &screenNumber);
    XConnection opened(connection, screenNumber);
    if (!opened.isAlive()) {
        return std::nullopt;
    }
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection));
    while (screenNumber-- > 0 && screen.rem > 1) { // the screen that DISPLAY names, or the last
        xcb_screen_next(&screen);
    }
    opened.screen_ = screen.data;
    return opened;
}

XConnection::XConnection(xcb_connection_t* connection, int screenNumber) noexcept
    : connection_(connection)
    , screenNumber_(screenNumber)
{}

xcb_atom_t atomOf(xcb_connection_t* connection, std::string_view name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace tocca::platform::linux

#include "Platform/Linux/X11/StartupNotice.h"

#include "Platform/Linux/X11/XConnection.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tocca::platform::linux {

namespace {

std::string quoted(const std::string& text)
{
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            result += '\\';
        }
        result += c;
    }
    return result + '"';
}

} // namespace

void completeStartup(const std::string& id)
{
    const auto connection = id.empty() ? std::nullopt : XConnection::open();
    if (!connection) {
        return;
    }
    xcb_connection_t* const server = connection->get();
    // Messages in pieces are told apart by their window.
    const xcb_window_t window = xcb_generate_id(server);
    constexpr std::uint32_t kPastTheWindowManager = 1;
    xcb_create_window(server, XCB_COPY_FROM_PARENT, window, connection->root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
                      &kPastTheWindowManager);
    const std::string text = "remove: ID=" + quoted(id) + '\0';
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 8;
    message.window = window;
    message.type = atomOf(server, "_NET_STARTUP_INFO_BEGIN");
    const xcb_atom_t next = atomOf(server, "_NET_STARTUP_INFO");
    constexpr std::size_t kPiece = sizeof(message.data.data8);
    for (std::size_t at = 0; at < text.size(); at += kPiece) {
        std::fill(std::begin(message.data.data8), std::end(message.data.data8), std::uint8_t{0});
        std::copy_n(text.begin() + static_cast<std::ptrdiff_t>(at), std::min(kPiece, text.size() - at),
                    std::begin(message.data.data8));
        xcb_send_event(server, 0, connection->root(), XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&message));
        message.type = next;
    }
    xcb_destroy_window(server, window);
    (void)atomOf(server, "_NET_STARTUP_INFO"); // whose answer shows that all of it has arrived
}

} // namespace tocca::platform::linux

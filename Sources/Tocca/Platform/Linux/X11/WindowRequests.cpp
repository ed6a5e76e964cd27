#include "Platform/Linux/X11/WindowRequests.h"

#include <xcb/randr.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace tocca::platform::linux {

namespace {

constexpr std::uint32_t kEveryDesktop = 0xFFFFFFFF;
constexpr std::uint32_t kSourceIsPager = 2; // a window manager follows a person's own wish at once
constexpr std::uint8_t kWordBits = 32;

bool contains(const std::vector<std::uint32_t>& values, std::uint32_t value)
{
    return std::find(values.begin(), values.end(), value) != values.end();
}

} // namespace

void WindowRequests::setClass(xcb_window_t window, std::string_view instance, std::string_view className)
{
    std::string text(instance);
    text += '\0';
    text += className;
    text += '\0';
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(text.size()), text.data());
}

std::optional<WindowRequests::Area> WindowRequests::monitorAt(int x, int y)
{
    const auto cookie = xcb_randr_get_monitors(connection_, root_, 1);
    const XReply<xcb_randr_get_monitors_reply_t> reply(
        xcb_randr_get_monitors_reply(connection_, cookie, nullptr));
    if (!reply) {
        return std::nullopt;
    }
    for (auto each = xcb_randr_get_monitors_monitors_iterator(reply.get()); each.rem > 0;
         xcb_randr_monitor_info_next(&each)) {
        if (each.data->x == x && each.data->y == y) {
            return Area{each.data->x, each.data->y, each.data->width, each.data->height};
        }
    }
    return std::nullopt;
}

std::optional<WindowRequests::Area> WindowRequests::dockAt(int x, int y)
{
    const xcb_atom_t dock = atom("_NET_WM_WINDOW_TYPE_DOCK");
    const auto column = static_cast<std::int16_t>(x);
    const auto row = static_cast<std::int16_t>(y);
    xcb_window_t window = root_;
    while (window != XCB_NONE) {
        // Window managers put frames around panels as well.
        const XReply<xcb_translate_coordinates_reply_t> below(xcb_translate_coordinates_reply(
            connection_, xcb_translate_coordinates(connection_, root_, window, column, row), nullptr));
        window = below ? below->child : xcb_window_t{XCB_NONE};
        if (window == XCB_NONE || !contains(words(window, "_NET_WM_WINDOW_TYPE"), dock)) {
            continue;
        }
        const auto sizeCookie = xcb_get_geometry(connection_, window);
        const auto placeCookie = xcb_translate_coordinates(connection_, window, root_, 0, 0);
        const XReply<xcb_get_geometry_reply_t> size(xcb_get_geometry_reply(connection_, sizeCookie, nullptr));
        const XReply<xcb_translate_coordinates_reply_t> place(
            xcb_translate_coordinates_reply(connection_, placeCookie, nullptr));
        if (size && place) {
            return Area{place->dst_x, place->dst_y, size->width, size->height};
        }
    }
    return std::nullopt;
}

xcb_window_t WindowRequests::keyboard()
{
    const XReply<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
    return focus ? focus->focus : xcb_window_t{XCB_NONE};
}

void WindowRequests::giveKeyboard(xcb_window_t window)
{
    // The refusal is taken here, because Qt would print it.
    const XReply<xcb_generic_error_t> refusal(
        xcb_request_check(connection_, xcb_set_input_focus_checked(connection_, XCB_INPUT_FOCUS_POINTER_ROOT,
                                                                   window, XCB_CURRENT_TIME)));
}

void WindowRequests::place(xcb_window_t window, const Area& area)
{
    const std::array values{static_cast<std::uint32_t>(area.x), static_cast<std::uint32_t>(area.y),
                            static_cast<std::uint32_t>(area.width), static_cast<std::uint32_t>(area.height)};
    xcb_configure_window(connection_, window,
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                             XCB_CONFIG_WINDOW_HEIGHT,
                         values.data());
    xcb_flush(connection_);
}

void WindowRequests::makeShadowless(xcb_window_t window)
{
    setWords(window, "_COMPTON_SHADOW", XCB_ATOM_CARDINAL, {0});
}

void WindowRequests::bringToCurrentDesktop(xcb_window_t window)
{
    const auto current = words(root_, "_NET_CURRENT_DESKTOP");
    const auto own = words(window, "_NET_WM_DESKTOP");
    if (!current.empty() && !own.empty() && own.front() != current.front() && own.front() != kEveryDesktop) {
        tellRoot(window, "_NET_WM_DESKTOP", {current.front(), kSourceIsPager});
    }
}

void WindowRequests::activate(xcb_window_t window)
{
    tellRoot(window, "_NET_ACTIVE_WINDOW", {kSourceIsPager, XCB_CURRENT_TIME, XCB_NONE});
}

void WindowRequests::minimise(xcb_window_t window)
{
    constexpr std::uint32_t kIconicState = 3;
    tellRoot(window, "WM_CHANGE_STATE", {kIconicState});
}

std::vector<xcb_window_t> WindowRequests::ordinaryWindows(std::uint32_t ownId)
{
    const auto current = words(root_, "_NET_CURRENT_DESKTOP");
    const xcb_atom_t hidden = atom("_NET_WM_STATE_HIDDEN");
    std::vector<xcb_window_t> windows;
    for (const xcb_window_t window : words(root_, "_NET_CLIENT_LIST_STACKING")) {
        const auto desktop = words(window, "_NET_WM_DESKTOP");
        const bool isElsewhere = !current.empty() && !desktop.empty() && desktop.front() != current.front();
        if (!isElsewhere && isOrdinary(window) && !contains(words(window, "_NET_WM_STATE"), hidden) &&
            !contains(words(window, "_NET_WM_PID"), ownId)) {
            windows.push_back(window);
        }
    }
    return windows;
}

bool WindowRequests::isButtonDown()
{
    constexpr unsigned kMainButtons =
        XCB_KEY_BUT_MASK_BUTTON_1 | XCB_KEY_BUT_MASK_BUTTON_2 | XCB_KEY_BUT_MASK_BUTTON_3;
    const XReply<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(connection_, xcb_query_pointer(connection_, root_), nullptr));
    return pointer && (pointer->mask & kMainButtons) != 0;
}

bool WindowRequests::isThere(xcb_window_t window)
{
    return contains(words(root_, "_NET_CLIENT_LIST"), window);
}

bool WindowRequests::isOrdinary(xcb_window_t window)
{
    const auto types = words(window, "_NET_WM_WINDOW_TYPE");
    return types.empty() || contains(types, atom("_NET_WM_WINDOW_TYPE_NORMAL")) ||
           contains(types, atom("_NET_WM_WINDOW_TYPE_DIALOG"));
}

std::vector<std::uint32_t> WindowRequests::words(xcb_window_t window, std::string_view property)
{
    constexpr std::uint32_t kMost = 4096;
    const auto cookie =
        xcb_get_property(connection_, 0, window, atom(property), XCB_GET_PROPERTY_TYPE_ANY, 0, kMost);
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_, cookie, nullptr));
    if (!reply || reply->format != kWordBits) {
        return {};
    }
    const auto* const first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    const auto count =
        static_cast<std::size_t>(xcb_get_property_value_length(reply.get())) / sizeof(std::uint32_t);
    return {first, first + count};
}

void WindowRequests::setWords(xcb_window_t window, std::string_view property, xcb_atom_t type,
                              const std::vector<std::uint32_t>& values)
{
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, atom(property), type, kWordBits,
                        static_cast<std::uint32_t>(values.size()), values.data());
}

void WindowRequests::tellRoot(xcb_window_t window, std::string_view message,
                              const std::vector<std::uint32_t>& values)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = kWordBits;
    event.window = window;
    event.type = atom(message);
    std::copy(values.begin(), values.end(), event.data.data32);
    constexpr std::uint32_t kReceivers =
        XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_send_event(connection_, 0, root_, kReceivers, reinterpret_cast<const char*>(&event));
    xcb_flush(connection_);
}

} // namespace tocca::platform::linux

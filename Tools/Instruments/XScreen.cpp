#include "Instruments/XScreen.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <span>
#include <stdexcept>
#include <string_view>
#include <xcb/randr.h>
#include <xcb/xcb.h>

namespace tocca::instruments {
namespace {

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

template <class Reply>
Owned<Reply> own(Reply* reply)
{
    return {reply, std::free};
}

constexpr std::uint32_t kLongest = 1024; // words of a property

} // namespace

XScreen::XScreen()
    : connection_(xcb_connect(nullptr, nullptr), xcb_disconnect)
{
    if (xcb_connection_has_error(connection_.get()) != 0) {
        throw std::runtime_error("there is no X server");
    }
    const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data;
    root_ = screen->root;
    width_ = screen->width_in_pixels;
    height_ = screen->height_in_pixels;
}

Picture XScreen::picture(int x, int y, int width, int height) const
{
    const auto reply = own(xcb_get_image_reply(
        connection_.get(),
        xcb_get_image(connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, root_, static_cast<std::int16_t>(x),
                      static_cast<std::int16_t>(y), static_cast<std::uint16_t>(width),
                      static_cast<std::uint16_t>(height), ~0U),
        nullptr));
    if (!reply) {
        throw std::runtime_error("the screen cannot be read");
    }
    const std::span data(xcb_get_image_data(reply.get()),
                         static_cast<std::size_t>(xcb_get_image_data_length(reply.get())));
    Picture picture{width, height, {}};
    picture.pixels.reserve(data.size() / 4);
    for (std::size_t i = 0; i + 3 < data.size(); i += 4) {
        picture.pixels.push_back({data[i + 2], data[i + 1], data[i]});
    }
    return picture;
}

std::vector<VisibleWindow> XScreen::windowsOf(int process) const
{
    std::vector<VisibleWindow> windows;
    collect(root_, static_cast<std::uint32_t>(process), windows);
    return windows;
}

void XScreen::collect(std::uint32_t window, std::uint32_t process, std::vector<VisibleWindow>& into) const
{
    const auto tree =
        own(xcb_query_tree_reply(connection_.get(), xcb_query_tree(connection_.get(), window), nullptr));
    if (!tree) {
        return;
    }
    const std::span children(xcb_query_tree_children(tree.get()),
                             static_cast<std::size_t>(xcb_query_tree_children_length(tree.get())));
    for (const std::uint32_t child : children) {
        const auto attributes = own(xcb_get_window_attributes_reply(
            connection_.get(), xcb_get_window_attributes(connection_.get(), child), nullptr));
        if (!attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE ||
            attributes->_class != XCB_WINDOW_CLASS_INPUT_OUTPUT) {
            continue;
        }
        if (words(child, "_NET_WM_PID") != std::vector{process}) {
            collect(child, process, into);
            continue;
        }
        const auto geometry = own(
            xcb_get_geometry_reply(connection_.get(), xcb_get_geometry(connection_.get(), child), nullptr));
        const auto place = own(xcb_translate_coordinates_reply(
            connection_.get(), xcb_translate_coordinates(connection_.get(), child, root_, 0, 0), nullptr));
        if (geometry && place) {
            into.push_back(
                {child, nameOf(child), place->dst_x, place->dst_y, geometry->width, geometry->height});
        }
    }
}

VisibleWindow XScreen::mainMonitor() const
{
    const auto reply = own(xcb_randr_get_monitors_reply(
        connection_.get(), xcb_randr_get_monitors(connection_.get(), root_, 1), nullptr));
    std::optional<VisibleWindow> found;
    if (reply) {
        for (auto each = xcb_randr_get_monitors_monitors_iterator(reply.get()); each.rem > 0;
             xcb_randr_monitor_info_next(&each)) {
            if (!found || each.data->primary != 0) {
                found = {0, {}, each.data->x, each.data->y, each.data->width, each.data->height};
            }
            if (each.data->primary != 0) {
                break;
            }
        }
    }
    return found.value_or(VisibleWindow{});
}

bool XScreen::isListed(std::uint32_t window) const
{
    const auto listed = words(root_, "_NET_CLIENT_LIST");
    return std::find(listed.begin(), listed.end(), window) != listed.end();
}

std::uint32_t XScreen::focus() const
{
    const auto reply =
        own(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
    return reply ? reply->focus : std::uint32_t{XCB_NONE};
}

std::string XScreen::activeWindow() const
{
    const auto active = words(root_, "_NET_ACTIVE_WINDOW");
    return active.empty() || active[0] == 0 ? std::string() : nameOf(active[0]);
}

std::uint32_t XScreen::atom(const char* name) const
{
    const std::string_view text(name);
    const auto reply = own(xcb_intern_atom_reply(
        connection_.get(),
        xcb_intern_atom(connection_.get(), 0, static_cast<std::uint16_t>(text.size()), name), nullptr));
    return reply ? reply->atom : std::uint32_t{XCB_ATOM_NONE};
}

std::vector<std::uint32_t> XScreen::words(std::uint32_t window, const char* property) const
{
    const auto reply = own(xcb_get_property_reply(
        connection_.get(),
        xcb_get_property(connection_.get(), 0, window, atom(property), XCB_ATOM_ANY, 0, kLongest), nullptr));
    if (!reply || reply->format != 32) {
        return {};
    }
    const auto* const first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

std::string XScreen::nameOf(std::uint32_t window) const
{
    const auto reply = own(xcb_get_property_reply(
        connection_.get(),
        xcb_get_property(connection_.get(), 0, window, atom("_NET_WM_NAME"), XCB_ATOM_ANY, 0, kLongest),
        nullptr));
    if (!reply || reply->format != 8) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(reply.get())), reply->value_len};
}

} // namespace tocca::instruments

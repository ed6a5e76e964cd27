#include "Platform/Linux/Tray/EmbeddedIcon.h"

#include "Platform/Linux/System/ApplicationId.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace tocca::platform::linux {

namespace {

constexpr std::uint8_t kArgbDepth = 32;
constexpr std::uint8_t kWordBits = 32;

/// `source` over the opaque `ground`.
std::uint32_t blend(std::uint32_t source, std::uint32_t ground)
{
    constexpr std::uint32_t kFull = 255;
    const std::uint32_t rest = kFull - (source >> 24U);
    std::uint32_t result = 0;
    for (const unsigned shift : {0U, 8U, 16U}) {
        const std::uint32_t channel =
            ((source >> shift) & kFull) + ((ground >> shift) & kFull) * rest / kFull;
        result |= std::min(channel, kFull) << shift;
    }
    return result;
}

} // namespace

std::unique_ptr<EmbeddedIcon> EmbeddedIcon::dock(xcb_window_t tray, Painter painter, Observers observers)
{
    auto connection = XConnection::open();
    if (!connection) {
        return nullptr;
    }
    // Not make_unique: the constructor is private.
    std::unique_ptr<EmbeddedIcon> icon(
        new EmbeddedIcon(std::move(*connection), std::move(painter), std::move(observers)));
    icon->create(tray);
    return icon;
}

EmbeddedIcon::EmbeddedIcon(XConnection connection, Painter painter, Observers observers)
    : connection_(std::move(connection))
    , painter_(std::move(painter))
    , observers_(std::move(observers))
{}

void EmbeddedIcon::create(xcb_window_t tray)
{
    xcb_connection_t* const connection = connection_.get();
    surface_ = surfaceOf(tray);
    const bool isArgb = surface_.depth == kArgbDepth;
    const xcb_colormap_t colours = xcb_generate_id(connection);
    xcb_create_colormap(connection, XCB_COLORMAP_ALLOC_NONE, colours, connection_.root(), surface_.visual);
    window_ = xcb_generate_id(connection);
    // Without transparency the tray's own ground shows through.
    const std::array<std::uint32_t, 4> values{
        isArgb ? std::uint32_t{XCB_BACK_PIXMAP_NONE} : std::uint32_t{XCB_BACK_PIXMAP_PARENT_RELATIVE}, 0,
        XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_BUTTON_PRESS |
            XCB_EVENT_MASK_BUTTON_RELEASE,
        colours};
    xcb_create_window(connection, surface_.depth, window_, connection_.root(), 0, 0, kFirstSize, kFirstSize,
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, surface_.visual,
                      XCB_CW_BACK_PIXMAP | XCB_CW_BORDER_PIXEL | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP,
                      values.data());
    context_ = xcb_generate_id(connection);
    xcb_create_gc(connection, context_, window_, 0, nullptr);

    const std::string windowClass = std::string("tocca") + '\0' + kApplicationId + '\0'; // instance and class
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(windowClass.size()), windowClass.data());
    constexpr std::string_view kName("Tocca");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                        kName.size(), kName.data());
    constexpr std::array<std::uint32_t, 2> kEmbedding{0, 1}; // the protocol's version; to be shown
    const xcb_atom_t embedding = atomOf(connection, "_XEMBED_INFO");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, embedding, embedding, kWordBits,
                        kEmbedding.size(), kEmbedding.data());
    // A tray that dies leaves the icon behind, so the tray is watched as well.
    constexpr std::uint32_t kTrayEvents = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, tray, XCB_CW_EVENT_MASK, &kTrayEvents);

    constexpr std::uint32_t kRequestDock = 0;
    xcb_client_message_event_t request{};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = kWordBits;
    request.window = tray;
    request.type = atomOf(connection, "_NET_SYSTEM_TRAY_OPCODE");
    request.data.data32[1] = kRequestDock;
    request.data.data32[2] = window_;
    xcb_send_event(connection, 0, tray, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&request));
    xcb_flush(connection);
}

EmbeddedIcon::Surface EmbeddedIcon::surfaceOf(xcb_window_t tray) const
{
    const auto cookie =
        xcb_get_property(connection_.get(), 0, tray, atomOf(connection_.get(), "_NET_SYSTEM_TRAY_VISUAL"),
                         XCB_ATOM_VISUALID, 0, 1);
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_.get(), cookie, nullptr));
    Surface surface{connection_.screen().root_visual, connection_.screen().root_depth};
    if (!reply || reply->format != kWordBits || xcb_get_property_value_length(reply.get()) == 0) {
        return surface;
    }
    xcb_visualid_t wanted = 0;
    std::memcpy(&wanted, xcb_get_property_value(reply.get()), sizeof(wanted));
    for (auto depth = xcb_screen_allowed_depths_iterator(&connection_.screen()); depth.rem > 0;
         xcb_depth_next(&depth)) {
        for (auto visual = xcb_depth_visuals_iterator(depth.data); visual.rem > 0;
             xcb_visualtype_next(&visual)) {
            if (visual.data->visual_id == wanted) {
                surface = {wanted, depth.data->depth};
            }
        }
    }
    return surface;
}

void EmbeddedIcon::repaint()
{
    if (!isShown_ || width_ <= 0 || height_ <= 0) {
        return;
    }
    xcb_connection_t* const connection = connection_.get();
    const int size = std::min(width_, height_);
    auto pixels = painter_(size);
    const auto x = static_cast<std::int16_t>((width_ - size) / 2);
    const auto y = static_cast<std::int16_t>((height_ - size) / 2);
    const auto side = static_cast<std::uint16_t>(size);
    if (surface_.depth != kArgbDepth) {
        xcb_clear_area(connection, 0, window_, 0, 0, 0, 0);
        const auto cookie =
            xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window_, x, y, side, side, ~0U);
        const XReply<xcb_get_image_reply_t> ground(xcb_get_image_reply(connection, cookie, nullptr));
        const auto bytes = pixels.size() * sizeof(std::uint32_t);
        if (!ground || static_cast<std::size_t>(xcb_get_image_data_length(ground.get())) < bytes) {
            return; // the icon is out of sight, or the server's pixel format is an unusual one
        }
        const auto* const behind = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(ground.get()));
        std::transform(pixels.begin(), pixels.end(), behind, pixels.begin(), blend);
    }
    xcb_put_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window_, context_, side, side, x, y, 0,
                  surface_.depth, static_cast<std::uint32_t>(pixels.size() * sizeof(std::uint32_t)),
                  reinterpret_cast<const std::uint8_t*>(pixels.data()));
    xcb_flush(connection);
}

std::optional<EmbeddedIcon::Place> EmbeddedIcon::place() const
{
    if (!isShown_ || isLost_) {
        return std::nullopt;
    }
    const auto cookie = xcb_translate_coordinates(connection_.get(), window_, connection_.root(), 0, 0);
    const XReply<xcb_translate_coordinates_reply_t> reply(
        xcb_translate_coordinates_reply(connection_.get(), cookie, nullptr));
    if (!reply) {
        return std::nullopt;
    }
    return Place{reply->dst_x, reply->dst_y, width_, height_};
}

bool EmbeddedIcon::serve()
{
    while (const auto event = connection_.nextEvent()) {
        handle(*event);
    }
    return !isLost_ && connection_.isAlive();
}

void EmbeddedIcon::handle(const xcb_generic_event_t& event)
{
    switch (typeOf(event)) {
    case XCB_EXPOSE:
        isShown_ = true;
        repaint();
        break;
    case XCB_CONFIGURE_NOTIFY: {
        const auto& notice = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
        if (notice.window == window_ && (notice.width != width_ || notice.height != height_)) {
            width_ = notice.width;
            height_ = notice.height;
            repaint();
        }
        break;
    }
    case XCB_REPARENT_NOTIFY: {
        const auto& notice = reinterpret_cast<const xcb_reparent_notify_event_t&>(event);
        isLost_ = isLost_ || (notice.window == window_ && notice.parent == connection_.root());
        break;
    }
    case XCB_DESTROY_NOTIFY: // of the icon, or of the tray
        isLost_ = true;
        break;
    case XCB_BUTTON_RELEASE: {
        const auto& notice = reinterpret_cast<const xcb_button_release_event_t&>(event);
        if (notice.detail == XCB_BUTTON_INDEX_1) {
            observers_.clicked();
        } else if (notice.detail == XCB_BUTTON_INDEX_3) {
            observers_.menuRequested();
        }
        break;
    }
    default:
        break;
    }
}

} // namespace tocca::platform::linux

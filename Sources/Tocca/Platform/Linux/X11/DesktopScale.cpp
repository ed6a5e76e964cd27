#include "Platform/Linux/X11/DesktopScale.h"

#include "Platform/Linux/X11/XConnection.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace tocca::platform::linux {

namespace {

/// Reads numbers of either byte order; 0 beyond the end, where it stays.
class Reader {
public:
    explicit Reader(std::string_view bytes) noexcept
        : bytes_(bytes)
        , isBig_(!bytes.empty() && bytes.front() == 1)
    {}

    [[nodiscard]] bool isAtEnd() const noexcept { return bytes_.empty(); }

    std::string_view take(std::size_t count) noexcept
    {
        const auto taken = bytes_.substr(0, count);
        bytes_.remove_prefix(taken.size());
        return taken;
    }

    /// What stands in front of bytes that fill it up to a multiple of four.
    std::string_view takePadded(std::size_t count) noexcept
    {
        const auto taken = take(count);
        take((4 - count % 4) % 4);
        return taken;
    }

    std::uint32_t number(std::size_t size) noexcept
    {
        std::uint32_t result = 0;
        const auto taken = take(size);
        for (std::size_t i = 0; i < taken.size(); ++i) {
            const auto byte = static_cast<unsigned char>(taken[isBig_ ? i : taken.size() - 1 - i]);
            result = result << 8U | byte;
        }
        return result;
    }

private:
    std::string_view bytes_;
    bool isBig_;
};

} // namespace

int scaleIn(std::string_view settings)
{
    enum Type : std::uint8_t { integer, string, colour };

    constexpr double kUsualDpi = 96.0 * 1024.0;
    constexpr std::uint32_t kMostScale = 4;
    std::optional<std::uint32_t> scale;
    std::optional<std::uint32_t> dpi;
    Reader reader(settings);
    (void)reader.number(4); // byte order
    (void)reader.number(4); // serial number
    for (std::uint32_t left = reader.number(4); left > 0 && !reader.isAtEnd(); --left) {
        const std::uint32_t type = reader.number(1);
        (void)reader.number(1);
        const std::string_view name = reader.takePadded(reader.number(2));
        (void)reader.number(4); // when it last changed
        if (type == string) {
            (void)reader.takePadded(reader.number(4));
        } else if (type == colour) {
            (void)reader.take(8);
        } else if (const std::uint32_t value = reader.number(4); name == "Gdk/WindowScalingFactor") {
            scale = value;
        } else if (name == "Xft/DPI") {
            dpi = value;
        }
    }
    const double inText = dpi ? std::max(1.0, *dpi / kUsualDpi) : 1.0;
    const std::uint32_t wanted = std::clamp(scale.value_or(1), 1U, kMostScale);
    return std::max(1, static_cast<int>(std::lround(wanted / inText)));
}

int desktopScale()
{
    const auto connection = XConnection::open();
    if (!connection) {
        return 1;
    }
    xcb_connection_t* const server = connection->get();
    const xcb_atom_t keeper = atomOf(server, "_XSETTINGS_S" + std::to_string(connection->screenNumber()));
    const XReply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(server, xcb_get_selection_owner(server, keeper), nullptr));
    if (!owner || owner->owner == XCB_NONE) {
        return 1;
    }
    constexpr std::uint32_t kMostWords = 65536;
    const xcb_atom_t property = atomOf(server, "_XSETTINGS_SETTINGS");
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        server, xcb_get_property(server, 0, owner->owner, property, property, 0, kMostWords), nullptr));
    if (!reply) {
        return 1;
    }
    return scaleIn({static_cast<const char*>(xcb_get_property_value(reply.get())),
                    static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))});
}

} // namespace tocca::platform::linux

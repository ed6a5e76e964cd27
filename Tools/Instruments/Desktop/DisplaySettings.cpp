#include "Instruments/Desktop/DisplaySettings.h"

#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string_view>
#include <vector>
#include <xcb/xcb.h>

namespace tocca::instruments {

namespace {

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

xcb_atom_t settingAtom(xcb_connection_t* connection, std::string_view name)
{
    const Owned<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(
            connection, xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data()),
            nullptr),
        std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

template <class Number>
void append(std::vector<char>& bytes, Number number)
{
    const auto* const first = reinterpret_cast<const char*>(&number); // in this computer's own order
    bytes.insert(bytes.end(), first, first + sizeof(number));
}

} // namespace

DisplaySettings::DisplaySettings()
    : connection_(xcb_connect(nullptr, nullptr), xcb_disconnect)
{
    xcb_connection_t* const connection = connection_.get();
    if (xcb_connection_has_error(connection) != 0) {
        throw std::runtime_error("there is no X server");
    }
    const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    window_ = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window_, screen->root, -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    publish();
    xcb_set_selection_owner(connection, window_, settingAtom(connection, "_XSETTINGS_S0"), XCB_CURRENT_TIME);
    publish();
}

void DisplaySettings::set(const std::string& name, std::int32_t value)
{
    settings_[name] = {value, ++serial_};
    publish();
}

void DisplaySettings::publish()
{
    std::vector<char> bytes;
    constexpr std::uint16_t kOne = 1;
    const bool isLittle = *reinterpret_cast<const char*>(&kOne) == 1;
    bytes.assign({isLittle ? '\0' : '\1', '\0', '\0', '\0'});
    append(bytes, serial_);
    append(bytes, static_cast<std::uint32_t>(settings_.size()));
    for (const auto& [name, setting] : settings_) {
        append(bytes, std::uint16_t{0}); // an integer
        append(bytes, static_cast<std::uint16_t>(name.size()));
        bytes.insert(bytes.end(), name.begin(), name.end());
        bytes.resize((bytes.size() + 3) / 4 * 4);
        append(bytes, setting.serial);
        append(bytes, setting.value);
    }
    xcb_connection_t* const connection = connection_.get();
    const xcb_atom_t name = settingAtom(connection, "_XSETTINGS_SETTINGS");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, name, name, 8,
                        static_cast<std::uint32_t>(bytes.size()), bytes.data());
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

} // namespace tocca::instruments

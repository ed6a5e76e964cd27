#include "Platform/Linux/X11/SelectionWatch.h"

#include "Platform/Linux/X11/XReply.h"

#include <xcb/xfixes.h>

#include <utility>

namespace tocca::platform::linux {

namespace {

/// The number of the first event of the extension, or nothing where it is missing.
std::uint8_t firstEventOfXFixes(xcb_connection_t* connection)
{
    const auto* const extension = xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (extension == nullptr || extension->present == 0) {
        return 0;
    }
    const auto cookie =
        xcb_xfixes_query_version(connection, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION);
    const XReply<xcb_xfixes_query_version_reply_t> reply(
        xcb_xfixes_query_version_reply(connection, cookie, nullptr));
    return reply ? extension->first_event : std::uint8_t{0};
}

} // namespace

std::unique_ptr<SelectionWatch> SelectionWatch::open(const std::vector<std::string>& names, Observer changed)
{
    int screenNumber = 0;
    Connection connection(xcb_connect(nullptr, &screenNumber));
    if (xcb_connection_has_error(connection.get()) != 0) {
        return nullptr;
    }
    const std::uint8_t firstEvent = firstEventOfXFixes(connection.get());
    if (firstEvent == 0) {
        return nullptr;
    }
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    for (int number = 0; number < screenNumber && screen.rem > 1; ++number) {
        xcb_screen_next(&screen);
    }
    std::vector<Selection> selections;
    for (const std::string& name : names) {
        const std::string full = name + std::to_string(screenNumber);
        const auto cookie =
            xcb_intern_atom(connection.get(), 0, static_cast<std::uint16_t>(full.size()), full.data());
        const XReply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(connection.get(), cookie, nullptr));
        if (!atom) {
            return nullptr;
        }
        constexpr std::uint32_t kEvents = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;
        // First the watch, then the question: who comes in between is told of twice, not never.
        xcb_xfixes_select_selection_input(connection.get(), screen.data->root, atom->atom, kEvents);
        const XReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
            connection.get(), xcb_get_selection_owner(connection.get(), atom->atom), nullptr));
        selections.push_back({atom->atom, owner ? owner->owner : xcb_window_t{XCB_NONE}});
    }
    // Not make_unique: the constructor is private.
    return std::unique_ptr<SelectionWatch>(
        new SelectionWatch(std::move(connection), firstEvent, std::move(selections), std::move(changed)));
}

SelectionWatch::SelectionWatch(Connection connection, std::uint8_t firstEvent,
                               std::vector<Selection> selections, Observer changed)
    : connection_(std::move(connection))
    , firstEvent_(firstEvent)
    , selections_(std::move(selections))
    , changed_(std::move(changed))
{}

bool SelectionWatch::serve()
{
    constexpr unsigned kSentByClient = 0x80;
    bool hasChanged = false;
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get())}) {
        if ((event->response_type & ~kSentByClient) != unsigned{firstEvent_} + XCB_XFIXES_SELECTION_NOTIFY) {
            continue;
        }
        const auto& notice = reinterpret_cast<const xcb_xfixes_selection_notify_event_t&>(*event);
        for (Selection& selection : selections_) {
            if (selection.name == notice.selection && selection.owner != notice.owner) {
                selection.owner = notice.owner;
                hasChanged = true;
            }
        }
    }
    if (hasChanged) {
        changed_();
    }
    return xcb_connection_has_error(connection_.get()) == 0;
}

} // namespace tocca::platform::linux

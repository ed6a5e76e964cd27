#include "Platform/Linux/X11/SelectionWatch.h"

#include <xcb/xfixes.h>

#include <utility>

namespace tocca::platform::linux {

namespace {

/// The number of the extension's first event, 0 where it is missing.
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
    auto opened = XConnection::open();
    const std::uint8_t firstEvent = opened ? firstEventOfXFixes(opened->get()) : std::uint8_t{0};
    if (firstEvent == 0) {
        return nullptr;
    }
    xcb_connection_t* const connection = opened->get();
    std::vector<Selection> selections;
    for (const std::string& name : names) {
        const xcb_atom_t atom = atomOf(connection, name + std::to_string(opened->screenNumber()));
        if (atom == XCB_ATOM_NONE) {
            return nullptr;
        }
        constexpr std::uint32_t kEvents = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;
        // The watch begins before the question, so that an owner who comes in between is heard of twice and not never.
        xcb_xfixes_select_selection_input(connection, opened->root(), atom, kEvents);
        const XReply<xcb_get_selection_owner_reply_t> owner(
            xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom), nullptr));
        selections.push_back({atom, owner ? owner->owner : xcb_window_t{XCB_NONE}});
    }
    // Not make_unique: the constructor is private.
    return std::unique_ptr<SelectionWatch>(
        new SelectionWatch(std::move(*opened), firstEvent, std::move(selections), std::move(changed)));
}

SelectionWatch::SelectionWatch(XConnection connection, std::uint8_t firstEvent,
                               std::vector<Selection> selections, Observer changed)
    : connection_(std::move(connection))
    , firstEvent_(firstEvent)
    , selections_(std::move(selections))
    , changed_(std::move(changed))
{}

bool SelectionWatch::serve()
{
    bool hasChanged = false;
    while (const auto event = connection_.nextEvent()) {
        if (typeOf(*event) != firstEvent_ + XCB_XFIXES_SELECTION_NOTIFY) {
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
    return connection_.isAlive();
}

} // namespace tocca::platform::linux

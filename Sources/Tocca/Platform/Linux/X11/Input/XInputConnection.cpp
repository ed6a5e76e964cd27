#include "Platform/Linux/X11/Input/XInputConnection.h"

#include "Platform/Linux/X11/Input/Xkb.h"

#include <X11/X.h>
#include <xcb/xcbext.h>
#include <xcb/xinput.h>

#include <cstddef>
#include <utility>

namespace tocca::platform::linux {

namespace {

constexpr std::uint16_t kAnnouncedMajor = 2;
constexpr std::uint16_t kAnnouncedMinor = 2;
constexpr std::uint16_t kNeededMinor = 1;

} // namespace

Result<std::unique_ptr<XInputConnection>, XInputObstacle> XInputConnection::open()
{
    auto connection = XConnection::open();
    if (!connection) {
        return XInputObstacle::NoServer;
    }
    // Not make_unique: the constructor is private.
    std::unique_ptr<XInputConnection> self(new XInputConnection(std::move(*connection)));
    if (!self->hasRawEvents()) {
        return self->isAlive() ? XInputObstacle::NoRawEvents : XInputObstacle::NoServer;
    }
    return self;
}

bool XInputConnection::hasRawEvents()
{
    xcb_connection_t* const connection = connection_.get();
    xcb_prefetch_extension_data(connection, &xcb_input_id);
    xcb_prefetch_extension_data(connection, &xcb_xkb_id);
    const auto* const input = xcb_get_extension_data(connection, &xcb_input_id);
    const auto* const keyboard = xcb_get_extension_data(connection, &xcb_xkb_id);
    if (input == nullptr || input->present == 0 || keyboard == nullptr || keyboard->present == 0) {
        return false;
    }
    inputOpcode_ = input->major_opcode;
    keyboardEvent_ = keyboard->first_event;
    const auto versionCookie = xcb_input_xi_query_version(connection, kAnnouncedMajor, kAnnouncedMinor);
    const auto keyboardCookie =
        xcb_xkb_use_extension(connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    const XReply<xcb_input_xi_query_version_reply_t> version(
        xcb_input_xi_query_version_reply(connection, versionCookie, nullptr));
    const XReply<xcb_xkb_use_extension_reply_t> use(
        xcb_xkb_use_extension_reply(connection, keyboardCookie, nullptr));
    return version && use && use->supported != 0 &&
           (version->major_version > kAnnouncedMajor ||
            (version->major_version == kAnnouncedMajor && version->minor_version >= kNeededMinor));
}

void XInputConnection::select(XInputSelection selection)
{
    xcb_connection_t* const connection = connection_.get();

    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } events{};

    // Masters, not slaves: every press is then reported once. No motion: nobody needs it, and it would wake the thread
    // a thousand times a second.
    events.head = {.deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1};
    if (selection.wantsKeys) {
        events.mask |= XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE;
    }
    if (selection.wantsButtons) {
        events.mask |= XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS;
    }
    xcb_input_xi_select_events(connection, connection_.root(), 1, &events.head);

    constexpr std::uint16_t kKinds = XCB_XKB_EVENT_TYPE_STATE_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY |
                                     XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY;
    constexpr std::uint16_t kMapParts = XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.affectState = XCB_XKB_STATE_PART_MODIFIER_LOCK;
    if (selection.wantsKeys) {
        details.newKeyboardDetails = details.affectNewKeyboard;
        details.stateDetails = details.affectState;
    }
    xcb_xkb_select_events_aux(connection, XCB_XKB_ID_USE_CORE_KBD, kKinds, 0, 0, kMapParts,
                              selection.wantsKeys ? kMapParts : std::uint16_t{0}, &details);
    xcb_flush(connection);
}

std::optional<XInputConnection::Snapshot> XInputConnection::snapshot()
{
    xcb_connection_t* const connection = connection_.get();
    const auto keysCookie = xcb_query_keymap(connection);
    const auto stateCookie = xcb_xkb_get_state(connection, XCB_XKB_ID_USE_CORE_KBD);
    const LayoutQuestion layout = sendLayoutQuestion();
    const XReply<xcb_query_keymap_reply_t> keys(xcb_query_keymap_reply(connection, keysCookie, nullptr));
    const XReply<xcb_xkb_get_state_reply_t> state(xcb_xkb_get_state_reply(connection, stateCookie, nullptr));
    const XReply<xcb_get_keyboard_mapping_reply_t> keysyms(
        xcb_get_keyboard_mapping_reply(connection, layout.keysyms, nullptr));
    const XReply<xcb_get_modifier_mapping_reply_t> modifiers(
        xcb_get_modifier_mapping_reply(connection, layout.modifiers, nullptr));
    if (!keys || !state || !keysyms || !modifiers) {
        return std::nullopt;
    }
    constexpr std::size_t kBitsPerByte = 8;
    Snapshot snapshot;
    for (std::size_t key = 0; key < snapshot.down.size(); ++key) {
        const unsigned byte = keys->keys[key / kBitsPerByte];
        snapshot.down[key] = ((byte >> (key % kBitsPerByte)) & 1U) != 0;
    }
    snapshot.isLocked = (state->lockedMods & LockMask) != 0;
    snapshot.roles = rolesFrom(keysyms.get(), modifiers.get());
    snapshot.sequence = keysCookie.sequence;
    return snapshot;
}

XInputConnection::LayoutQuestion XInputConnection::sendLayoutQuestion()
{
    xcb_connection_t* const connection = connection_.get();
    const auto* const setup = xcb_get_setup(connection);
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    return {.keysyms = xcb_get_keyboard_mapping(connection, setup->min_keycode, count),
            .modifiers = xcb_get_modifier_mapping(connection)};
}

void XInputConnection::askLayout()
{
    if (question_) {
        isLayoutStale_ = true;
        return;
    }
    question_ = sendLayoutQuestion();
    xcb_flush(connection_.get());
}

std::optional<KeyRoles> XInputConnection::takeLayout()
{
    if (!question_) {
        return std::nullopt;
    }
    xcb_connection_t* const connection = connection_.get();
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    if (!keysyms_) {
        if (xcb_poll_for_reply(connection, question_->keysyms.sequence, &reply, &error) == 0) {
            return std::nullopt;
        }
        XFree()(error);
        keysyms_.reset(static_cast<xcb_get_keyboard_mapping_reply_t*>(reply));
    }
    if (xcb_poll_for_reply(connection, question_->modifiers.sequence, &reply, &error) == 0) {
        return std::nullopt;
    }
    XFree()(error);
    const XReply<xcb_get_modifier_mapping_reply_t> modifiers(
        static_cast<xcb_get_modifier_mapping_reply_t*>(reply));
    const auto keysyms = std::move(keysyms_);
    question_.reset();
    if (isLayoutStale_) {
        isLayoutStale_ = false;
        askLayout();
    }
    if (!keysyms || !modifiers) {
        return std::nullopt;
    }
    return rolesFrom(keysyms.get(), modifiers.get());
}

KeyRoles XInputConnection::rolesFrom(const xcb_get_keyboard_mapping_reply_t* keysyms,
                                     const xcb_get_modifier_mapping_reply_t* modifiers) const
{
    KeyRoles::Layout layout;
    const std::size_t first = xcb_get_setup(connection_.get())->min_keycode;
    const std::size_t levels = keysyms->keysyms_per_keycode;
    const auto available = static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(keysyms));
    const xcb_keysym_t* const symbols = xcb_get_keyboard_mapping_keysyms(keysyms);
    for (std::size_t at = 0; levels != 0 && at < available && first + at / levels < KeyRoles::kKeys;
         at += levels) {
        layout.keysyms[first + at / levels] = symbols[at];
    }
    const std::size_t perModifier = modifiers->keycodes_per_modifier;
    const auto members = static_cast<std::size_t>(xcb_get_modifier_mapping_keycodes_length(modifiers));
    const xcb_keycode_t* const keys = xcb_get_modifier_mapping_keycodes(modifiers);
    for (std::size_t at = 0; at < members; ++at) {
        layout.modifiers[keys[at]] |= static_cast<std::uint8_t>(1U << (at / perModifier));
    }
    return KeyRoles(layout);
}

XReply<xcb_generic_event_t> XInputConnection::nextEvent(bool mayRead) noexcept
{
    return XReply<xcb_generic_event_t>(mayRead ? xcb_poll_for_event(connection_.get())
                                               : xcb_poll_for_queued_event(connection_.get()));
}

bool XInputConnection::drain() noexcept
{
    while (nextEvent(true)) {
    }
    return isAlive();
}

} // namespace tocca::platform::linux

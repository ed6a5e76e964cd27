#include "Platform/Linux/X11/XQuestions.h"

#include <xcb/xcbext.h>

#include <cstddef>

namespace tocca::platform::linux {

void XQuestions::askProperty(xcb_window_t window, xcb_atom_t property,
                             std::function<void(std::string)> answer)
{
    constexpr std::uint32_t kWords = 1024; // of four bytes
    const auto cookie =
        xcb_get_property(connection_, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, kWords);
    ask<xcb_get_property_reply_t>(
        cookie, [answer = std::move(answer)](const xcb_get_property_reply_t* reply) {
            if (reply == nullptr) {
                answer({});
                return;
            }
            const auto* const bytes = static_cast<const char*>(xcb_get_property_value(reply));
            answer({bytes, static_cast<std::size_t>(xcb_get_property_value_length(reply))});
        });
}

bool XQuestions::serve()
{
    bool hasServed = false;
    while (!pending_.empty()) {
        void* reply = nullptr;
        xcb_generic_error_t* error = nullptr;
        if (xcb_poll_for_reply(connection_, pending_.front().sequence, &reply, &error) == 0) {
            break;
        }
        const XReply<void> owned(reply);
        const XReply<xcb_generic_error_t> ownedError(error);
        const auto answer = std::move(pending_.front().answer);
        pending_.pop_front(); // the answer may lead to further questions
        answer(reply);
        hasServed = true;
    }
    return hasServed;
}

} // namespace tocca::platform::linux

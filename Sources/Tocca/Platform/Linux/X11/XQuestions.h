#pragma once

#include "Platform/Linux/X11/XReply.h"

#include <xcb/xcb.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <utility>

namespace tocca::platform::linux {

/// Questions to an X server whose answers are taken when they are there: nobody ever waits for the server.
///
/// Threads: one at a time.
/// Order: answers are delivered in the order of the questions, from inside `serve`.
/// Errors: a refused question is answered by null, and so is every question to a lost server.
class XQuestions {
public:
    explicit XQuestions(xcb_connection_t* connection) noexcept
        : connection_(connection)
    {}

    /// Calls `answer` with the reply to the request that `cookie` stands for.
    template <class Reply, class Cookie>
    void ask(Cookie cookie, std::function<void(const Reply*)> answer)
    {
        pending_.push_back({cookie.sequence, [answer = std::move(answer)](const void* reply) {
                                answer(static_cast<const Reply*>(reply));
                            }});
    }

    /// Asks for a property as bytes, of which it calls `answer` with the first few kilobytes.
    void askProperty(xcb_window_t window, xcb_atom_t property, std::function<void(std::string)> answer);

    /// Delivers the answers that have come; false when none has.
    bool serve();

private:
    struct Pending {
        unsigned sequence;
        std::function<void(const void*)> answer;
    };

    xcb_connection_t* const connection_;
    std::deque<Pending> pending_;
};

} // namespace tocca::platform::linux

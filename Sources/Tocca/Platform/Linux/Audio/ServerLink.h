#pragma once

#include "Platform/Linux/Audio/ControlLoop.h"

#include <algorithm>

namespace tocca::platform::linux {

/// A connection to a sound server, tried again until it holds: what the outputs and the device lists have in common.
///
/// The first attempt is made soon after the construction, the next ones after 0.25 s, 0.5 s, … up to every five seconds.
/// Threads: control.
class ServerLink {
public:
    virtual ~ServerLink() = default;
    ServerLink(const ServerLink&) = delete;
    ServerLink& operator=(const ServerLink&) = delete;

    /// Tries soon instead of at the next regular attempt, unless connected: there is a sign of the server.
    virtual void lookNow() = 0;

protected:
    explicit ServerLink(ControlLoop& loop)
        : retry_(loop, [this] { connect(); })
    {
        retry_.once(0.0);
    }

    /// Connects anew, whatever there was.
    virtual void connect() = 0;

    /// Connects in a moment: a server that has just made its socket may not listen yet, and one that was lost needs time to come back.
    void retrySoon()
    {
        delay_ = kFirstDelay;
        retry_.once(delay_);
    }

    /// Connects after a longer time than before.
    void retryLater()
    {
        delay_ = std::min(delay_ * 2.0, kLastDelay);
        retry_.once(delay_);
    }

    /// Makes the next wait a short one.
    void resetDelay() noexcept { delay_ = kFirstDelay; }

private:
    static constexpr double kFirstDelay = 0.25; // seconds
    static constexpr double kLastDelay = 5.0;

    ControlTimer retry_;
    double delay_ = kFirstDelay;
};

} // namespace tocca::platform::linux

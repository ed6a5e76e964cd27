#include "Platform/Linux/X11/Input/X11TrustQuery.h"

#include "Platform/Linux/System/WaylandSession.h"
#include "Platform/StandardOutput.h"

#include <string_view>
#include <utility>

namespace tocca::platform::linux {

X11TrustQuery::X11TrustQuery(StandardOutput& output)
    : output_(output)
{}

bool X11TrustQuery::isTrusted()
{
    return judge() == Verdict::Trusted;
}

bool X11TrustQuery::promptForTrust()
{
    constexpr auto kReason = [](Verdict verdict) -> std::string_view {
        switch (verdict) {
        case Verdict::Wayland:
            return "Keys cannot be heard: in a Wayland session programs do not hear each other's keys.";
        case Verdict::NoServer:
            return "Keys cannot be heard: no X server answers at DISPLAY.";
        case Verdict::NoRawEvents:
            return "Keys cannot be heard: the X server lacks XInput 2.1.";
        case Verdict::Trusted:
            break;
        }
        return {};
    };
    const Verdict verdict = judge();
    if (verdict == Verdict::Trusted) {
        return true;
    }
    if (printed_.insert(verdict).second) {
        output_.printLine(kReason(verdict));
    }
    return false;
}

std::string X11TrustQuery::explanation()
{
    switch (judge()) {
    case Verdict::Wayland:
        return "This is a Wayland session, in which a program hears only what is typed into its own windows. "
               "Tocca hears every key in a "
               "session on X11: log out, choose a session called X11 or Xorg where you log in, and start "
               "Tocca again.";
    case Verdict::NoServer:
        return "Tocca hears the keyboard through the X server, and none answers at DISPLAY.";
    case Verdict::NoRawEvents:
        return "Tocca hears the keyboard through XInput 2.1, and the X server of this session does not have "
               "it. Later servers do.";
    case Verdict::Trusted:
        break;
    }
    return "Nothing is missing: Tocca hears the keyboard of this session.";
}

X11TrustQuery::Verdict X11TrustQuery::judge()
{
    if (isWaylandSession()) {
        return Verdict::Wayland;
    }
    if (connection_ && connection_->drain()) {
        return Verdict::Trusted;
    }
    connection_.reset();
    auto opened = XInputConnection::open();
    if (!opened) {
        return opened.error() == XInputObstacle::NoServer ? Verdict::NoServer : Verdict::NoRawEvents;
    }
    connection_ = std::move(opened.value());
    return Verdict::Trusted;
}

} // namespace tocca::platform::linux

#include "Platform/Linux/X11/FrontWindow.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <utility>

#include <unistd.h>

namespace tocca::platform::linux {

FrontWindow::FrontWindow(const XConnection& connection, XQuestions& questions, const WindowInquiry& inquiry,
                         Observer observer)
    : connection_(connection.get())
    , root_(connection.root())
    , questions_(questions)
    , inquiry_(inquiry)
    , observer_(std::move(observer))
{}

void FrontWindow::look()
{
    ++look_;
    questions_.askProperty(root_, inquiry_.activeWindow(), [this, look = look_](const std::string& value) {
        xcb_window_t window = XCB_WINDOW_NONE;
        if (look != look_) {
            return;
        }
        if (value.size() < sizeof(window)) {
            observer_(std::nullopt);
            return;
        }
        std::memcpy(&window, value.data(), sizeof(window));
        found(window);
    });
}

void FrontWindow::propertyChanged(xcb_atom_t property)
{
    if (property == inquiry_.activeWindow()) {
        look();
    }
}

void FrontWindow::found(xcb_window_t window)
{
    if (window != XCB_WINDOW_NONE) {
        ask(window, [this](const WindowFacts& facts) { observer_(facts); });
        return;
    }
    // A popover of ours that has the keyboard makes some window managers say that nobody is in front.
    const auto cookie = xcb_get_input_focus(connection_);
    questions_.ask<xcb_get_input_focus_reply_t>(
        cookie, [this, look = look_](const xcb_get_input_focus_reply_t* reply) {
            if (look != look_) {
                return;
            }
            if (reply == nullptr || reply->focus == root_ || reply->focus <= XCB_INPUT_FOCUS_POINTER_ROOT) {
                observer_(WindowFacts{});
                return;
            }
            ask(reply->focus, [this](const WindowFacts&) { observer_(WindowFacts{}); });
        });
}

void FrontWindow::ask(xcb_window_t window, std::function<void(const WindowFacts&)> answer)
{
    const auto isPast = std::make_shared<bool>(false);
    questions_.ask<xcb_get_window_attributes_reply_t>(
        xcb_get_window_attributes(connection_, window),
        [isPast](const xcb_get_window_attributes_reply_t* reply) {
            *isPast = reply != nullptr && reply->override_redirect != 0;
        });
    inquiry_.ask(window, [look = look_, this, isPast, answer = std::move(answer)](const WindowFacts& facts) {
        const bool isOwnPopover = *isPast && facts.process == static_cast<std::uint32_t>(::getpid());
        if (look == look_ && !isOwnPopover) {
            answer(facts);
        }
    });
}

} // namespace tocca::platform::linux

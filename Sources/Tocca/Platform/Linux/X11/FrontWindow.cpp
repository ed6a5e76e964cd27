#include "Platform/Linux/X11/FrontWindow.h"

#include <cstring>
#include <string>
#include <utility>

namespace tocca::platform::linux {

FrontWindow::FrontWindow(xcb_window_t root, XQuestions& questions, const WindowInquiry& inquiry,
                         Observer observer)
    : root_(root)
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
    if (window == XCB_WINDOW_NONE) {
        observer_(WindowFacts{});
        return;
    }
    inquiry_.ask(window, [this, look = look_](const WindowFacts& facts) {
        if (look == look_) {
            observer_(facts);
        }
    });
}

} // namespace tocca::platform::linux

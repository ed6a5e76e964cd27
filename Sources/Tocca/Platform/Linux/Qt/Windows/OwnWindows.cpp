#include "Platform/Linux/Qt/Windows/OwnWindows.h"

#include "Platform/Linux/Qt/Windows/ContentWindow.h"

#include <utility>

namespace tocca::platform::linux {

void OwnWindows::add(ContentWindow& window)
{
    windows_.push_back(&window);
    if (listener_ != nullptr) {
        window.installEventFilter(listener_);
    }
    if (made_) {
        made_(window);
    }
}

void OwnWindows::remove(ContentWindow& window)
{
    std::erase(windows_, &window);
    std::erase(hidden_, &window);
}

void OwnWindows::setDialog(bool isOpen)
{
    if (hasDialog_ == isOpen) {
        return;
    }
    hasDialog_ = isOpen;
    for (ContentWindow* const window : windows_) {
        window->dialogChanged(isOpen);
    }
}

void OwnWindows::hide()
{
    for (ContentWindow* const window : windows_) {
        if (window->isVisible() && window->hideWithProgram()) {
            std::erase(hidden_, window);
            hidden_.push_back(window);
        }
    }
}

void OwnWindows::showAgain()
{
    for (ContentWindow* const window : std::exchange(hidden_, {})) {
        window->present();
    }
}

} // namespace tocca::platform::linux

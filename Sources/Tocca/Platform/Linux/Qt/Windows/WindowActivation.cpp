#include "Platform/Linux/Qt/Windows/WindowActivation.h"

#include "Platform/Linux/Qt/XDesktop.h"

#include <QWindow>

namespace tocca::platform::linux {

void bringToFront(QWindow& window)
{
    window.raise();
    window.requestActivate();
    if (auto desktop = XDesktop::requests()) {
        const auto id = static_cast<xcb_window_t>(window.winId());
        desktop->bringToCurrentDesktop(id);
        // Qt asks with the time of the last key or click in its own windows; window managers take that for an outdated request.
        desktop->activate(id);
    }
}

} // namespace tocca::platform::linux

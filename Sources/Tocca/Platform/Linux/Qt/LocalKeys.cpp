#include "Platform/Linux/Qt/LocalKeys.h"

#include "Platform/Linux/System/LinuxClock.h"
#include "Platform/Linux/X11/Input/ServerTime.h"

#include <QKeyEvent>

namespace tocca::platform::linux {

bool LocalKeys::eventFilter(QObject* /*watched*/, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        take(static_cast<const QKeyEvent&>(*event));
        break;
    case QEvent::FocusOut:
        // Keys that are down now will be released in another window.
        keys_.resynchronize(
            {}, false, [this](const KeyTransition& transition) { deliver(transition, monotonicSeconds()); });
        break;
    default:
        break;
    }
    return false;
}

void LocalKeys::take(const QKeyEvent& event)
{
    const quint32 scanCode = event.nativeScanCode(); // the kernel's code plus 8, on X11 and on Wayland
    if (scanCode == 0 || scanCode >= KeyRoles::kKeys) {
        return; // made by a program, not by a keyboard
    }
    const auto key = static_cast<std::uint8_t>(scanCode);
    const bool isPress = event.type() == QEvent::KeyPress;
    if (!isPress && event.isAutoRepeat()) {
        return; // the key is still down
    }
    constexpr quint32 kLock = 2; // Caps Lock among X's modifiers, as it was before the key
    const double time = timeOfEvent(monotonicSeconds(), static_cast<std::uint32_t>(event.timestamp()));
    if (const auto change = keys_.setLocked((event.nativeModifiers() & kLock) != 0)) {
        deliver(*change, time);
    }
    if (const auto change = isPress ? keys_.press(key, event.isAutoRepeat()) : keys_.release(key)) {
        deliver(*change, time);
    }
}

void LocalKeys::deliver(KeyTransition transition, double time)
{
    transition.event.time = time;
    monitors_.deliver(transition.type, transition.event);
}

} // namespace tocca::platform::linux

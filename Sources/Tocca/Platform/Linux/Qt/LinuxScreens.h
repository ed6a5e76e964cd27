#pragma once

#include "Platform/Desktop/Screens.h"
#include "Support/Listeners.h"

#include <QMetaObject>
#include <QObject>
#include <QRect>

#include <memory>
#include <vector>

class QScreen;

namespace tocca::platform::linux {

/// The displays that Qt knows; there is no main screen without a display.
class LinuxScreens : public Screens {
public:
    [[nodiscard]] std::optional<Screen> main() const override;
    [[nodiscard]] Subscription onChange(std::function<void()> handler) override;

private:
    void follow();
    void followMain();

    Listeners<> listeners_;
    std::unique_ptr<QObject> observer_;     // of the application
    std::unique_ptr<QObject> mainObserver_; // of the display that is the main one now
};

/// A frame of the controllers, whose y runs upwards from the main screen's bottom, in Qt's coordinates, in which that screen is `main`.
/// Units: points on both sides, rounded to whole ones.
[[nodiscard]] QRect qtRect(const Rect& frame, const QRect& main);

} // namespace tocca::platform::linux

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

/// The displays as the toolkit knows them; none without one.
class LinuxScreens : public Screens {
public:
    [[nodiscard]] std::optional<Screen> main() const override;
    [[nodiscard]] Subscription onChange(std::function<void()> handler) override;

private:
    void follow();
    void followMain();

    Listeners listeners_;
    std::unique_ptr<QObject> observer_;     // of the application
    std::unique_ptr<QObject> mainObserver_; // of the display that is the main one now
};

/// Where a frame of the controllers lies for the toolkit, whose y runs downwards, on a main screen that it says lies at `main`.
/// Units: points on both sides, rounded to whole ones.
[[nodiscard]] QRect qtRect(const Rect& frame, const QRect& main);

} // namespace tocca::platform::linux

#pragma once

#include "Platform/Desktop/Screens.h"
#include "Support/Listeners.h"

#include <QMetaObject>
#include <QObject>
#include <QRect>
#include <QTimer>

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
    /// Where the main screen is, as Qt has it.
    struct Place {
        QRect geometry;
        double scale = 0;

        bool operator==(const Place&) const = default;
    };

    void follow();
    void followAll();
    void changed();
    void tellIfMoved();
    [[nodiscard]] static Place mainPlace();

    Listeners<> listeners_;
    Place told_;
    std::unique_ptr<QObject> observer_;        // of the application
    std::unique_ptr<QObject> screensObserver_; // of the displays that there are now
    std::unique_ptr<QTimer> lookAgain_;
};

/// A frame of the controllers, whose y runs upwards from the main screen's bottom, in Qt's coordinates, in which that screen is `main`.
/// Units: points on both sides, rounded to whole ones.
[[nodiscard]] QRect qtRect(const Rect& frame, const QRect& main);

/// The same frame in pixels of the main screen, which lies at `main`, at `scale` pixels a point. It does not leave that screen.
[[nodiscard]] QRect pixelRect(const Rect& frame, const QRect& main, double scale);

} // namespace tocca::platform::linux

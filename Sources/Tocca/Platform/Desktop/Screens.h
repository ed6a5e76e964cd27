#pragma once

#include "Platform/Desktop/Geometry.h"
#include "Support/Subscription.h"

#include <functional>
#include <optional>

namespace tocca::platform {

/// A display. Units: points.
struct Screen {
    Rect frame;
    double safeAreaTop = 0; ///< height of the band beside a camera housing; 0 on screens without one

    bool operator==(const Screen&) const = default;
};

/// The displays of the session. Threads: main, calls included.
class Screens {
public:
    virtual ~Screens() = default;

    /// The main screen, or nothing while no display is connected.
    [[nodiscard]] virtual std::optional<Screen> main() const = 0;

    /// Calls `handler` after displays came, went or changed their place, size or scale, never before this call has returned.
    [[nodiscard]] virtual Subscription onChange(std::function<void()> handler) = 0;
};

} // namespace tocca::platform

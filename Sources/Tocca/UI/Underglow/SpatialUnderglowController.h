#pragma once

#include "Platform/Desktop/View.h"
#include "Support/Published.h"
#include "Support/Subscription.h"
#include "UI/Underglow/UnderglowTheme.h"

#include <functional>
#include <memory>

namespace tocca::audio {
class AudioEngine;
}

namespace tocca::platform {
class Panel;
class Timer;
struct Host;
} // namespace tocca::platform

namespace tocca::ui {

/// Flashes a strip of light along the bottom edge of the main screen where each key lies on the keyboard.
///
/// On at every start; nothing of it is kept.
/// Threads: main.
class SpatialUnderglowController {
public:
    using MakeView = std::function<std::unique_ptr<platform::View>()>;

    SpatialUnderglowController(platform::Host& host, audio::AudioEngine& engine, MakeView makeView);
    SpatialUnderglowController(const SpatialUnderglowController&) = delete;
    SpatialUnderglowController& operator=(const SpatialUnderglowController&) = delete;
    ~SpatialUnderglowController();

    /// The controller on the default host, with the default views.
    [[nodiscard]] static SpatialUnderglowController& shared();

    Published<bool> isEnabled{true}; ///< a fade already begun still ends when it is switched off
    Published<UnderglowTheme> currentTheme{UnderglowTheme::studioAmber};
    Published<double> pulseXRatio{0.5};  ///< centre of the glow in widths of the screen, 0.15…0.85
    Published<double> pulseOpacity{0.0}; ///< where the glow's strength is heading, 0…0.85

    /// Makes and shows the strip, once; without a screen the next pulse tries again.
    void setup();

    /// Flashes for a stroke at stereo position `pan`, −1 left … +1 right.
    void triggerPulse(float pan);

private:
    void setupSubscriptions();

    platform::Host& host_;
    audio::AudioEngine& engine_;
    const MakeView makeView_;
    std::unique_ptr<platform::Panel> window_;
    std::unique_ptr<platform::Timer> fadeTimer_;
    Subscription screenChanges_;
    Subscription cancellable_;
};

} // namespace tocca::ui

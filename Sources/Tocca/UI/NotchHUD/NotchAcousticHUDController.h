#pragma once

#include "Platform/Desktop/View.h"
#include "Support/Lifetime.h"
#include "Support/Published.h"
#include "Support/Spring.h"
#include "Support/Subscription.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tocca::audio {
class AudioEngine;
}

namespace tocca::keyboard {
class KeyboardMonitor;
}

namespace tocca::platform {
class Panel;
class Timer;
struct Host;
} // namespace tocca::platform

namespace tocca::ui {

/// Shows typing at the top of the main screen: a capsule with the switch, a waveform and the speed, which springs open with the key
/// sounds and leaves 1.6 s after the last one.
///
/// Off at every start; what the person chose is written to the defaults and never read back.
/// Threads: main.
class NotchAcousticHUDController {
public:
    using MakeView = std::function<std::unique_ptr<platform::View>()>;

    /// How the panel opens and closes.
    static constexpr SpringParameters kOpening{.response = 0.28, .dampingFraction = 0.72};
    static constexpr SpringParameters kClosing{.response = 0.45, .dampingFraction = 0.85};

    NotchAcousticHUDController(platform::Host& host, audio::AudioEngine& engine,
                               keyboard::KeyboardMonitor& monitor, MakeView makeView);
    NotchAcousticHUDController(const NotchAcousticHUDController&) = delete;
    NotchAcousticHUDController& operator=(const NotchAcousticHUDController&) = delete;
    ~NotchAcousticHUDController();

    /// The controller on the default host, with the default views.
    [[nodiscard]] static NotchAcousticHUDController& shared();

    Published<bool> isEnabled{false};
    Published<bool> isExpanded{false};               ///< the content is shown open
    Published<std::string> switchName{"Holy Panda"}; ///< of the custom pack, else of the switch
    Published<std::int64_t> currentWPM{0};           ///< words per minute
    Published<double> currentEnergy{0.0};            ///< of the last pulse, 0.65…1; 0 when idle

    /// Makes the panel, once.
    void setup();

    /// Puts the panel under the top of the main screen, if there are both.
    void reposition();

    /// Opens the panel for a stroke and starts the wait for its end anew.
    void triggerPulse();

private:
    void setupSubscriptions();
    void applyEnabled(bool enabled);
    void collapse();

    platform::Host& host_;
    audio::AudioEngine& engine_;
    keyboard::KeyboardMonitor& monitor_;
    const MakeView makeView_;
    std::unique_ptr<platform::Panel> panel_;
    std::unique_ptr<platform::Timer> idleTimer_;
    Subscription screenChanges_;
    Subscription enabledLink_;
    std::vector<Subscription> cancellables_;
    Lifetime lifetime_;
};

} // namespace tocca::ui

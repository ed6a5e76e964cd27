#pragma once

namespace tocca::app {
class LaunchAtLogin;
class SmartMuteManager;
} // namespace tocca::app

namespace tocca::audio {
class AudioEngine;
class SoundPackLoader;
} // namespace tocca::audio

namespace tocca::keyboard {
class KeyboardMonitor;
}

namespace tocca::platform {
struct Host;
}

namespace tocca::ui {

class NotchAcousticHUDController;
class SpatialUnderglowController;

/// What the popover and the Studio window show and change, and the desktop they ask.
/// Lifetime: every member outlives the views.
struct Controllers {
    platform::Host& host;
    audio::AudioEngine& audioEngine;
    keyboard::KeyboardMonitor& keyboardMonitor;
    audio::SoundPackLoader& soundPackLoader;
    app::LaunchAtLogin& launchAtLogin;
    app::SmartMuteManager& smartMute;
    NotchAcousticHUDController& notchHUD;
    SpatialUnderglowController& underglow;

    /// The `shared` ones, made in the order of the members by the first call. Threads: main.
    [[nodiscard]] static Controllers shared();
};

} // namespace tocca::ui

#pragma once

#include "App/LaunchAtLogin.h"
#include "App/SmartMuteManager.h"
#include "Audio/AudioEngine.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "Keyboard/KeyboardMonitor.h"
#include "Platform/Memory/MemoryHost.h"
#include "UI/Controllers.h"
#include "UI/NotchHUD/NotchAcousticHUDController.h"
#include "UI/Underglow/SpatialUnderglowController.h"

namespace tocca::ui {

/// All controllers on a machine in memory with one built-in pack.
struct ControllersOnMemory {
    ControllersOnMemory() { host.files().write("/app/resources/SoundPacks/holy-panda/press.wav", "press"); }

    platform::memory::MemoryHost host;
    audio::SoundPackLoader loader{host};
    app::SmartMuteManager smartMute{host};
    audio::AudioEngine engine{host, loader, [this] { return smartMute.isMutedNow(); }};
    keyboard::KeyboardMonitor monitor{host, engine};
    app::LaunchAtLogin launchAtLogin{host};
    NotchAcousticHUDController notchHUD{host, engine, monitor,
                                        [] { return std::make_unique<platform::View>(); }};
    SpatialUnderglowController underglow{host, engine, [] { return std::make_unique<platform::View>(); }};
    Controllers all{host, engine, monitor, loader, launchAtLogin, smartMute, notchHUD, underglow};
};

} // namespace tocca::ui

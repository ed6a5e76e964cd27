#include "UI/Controllers.h"

#include "App/LaunchAtLogin.h"
#include "App/SmartMuteManager.h"
#include "Audio/AudioEngine.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "Keyboard/KeyboardMonitor.h"
#include "Platform/Host.h"
#include "UI/NotchHUD/NotchAcousticHUDController.h"
#include "UI/Underglow/SpatialUnderglowController.h"

namespace tocca::ui {

Controllers Controllers::shared()
{
    return {.host = platform::defaultHost(),
            .audioEngine = audio::AudioEngine::shared(),
            .keyboardMonitor = keyboard::KeyboardMonitor::shared(),
            .soundPackLoader = audio::SoundPackLoader::shared(),
            .launchAtLogin = app::LaunchAtLogin::shared(),
            .smartMute = app::SmartMuteManager::shared(),
            .notchHUD = NotchAcousticHUDController::shared(),
            .underglow = SpatialUnderglowController::shared()};
}

} // namespace tocca::ui

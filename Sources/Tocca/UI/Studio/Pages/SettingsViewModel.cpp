#include "UI/Studio/Pages/SettingsViewModel.h"

#include "Audio/Packs/SoundPackLoader.h"
#include "Platform/Desktop/Workspace.h"
#include "Platform/Host.h"
#include "Support/DisplayText.h"
#include "UI/Studio/StudioText.h"

#include <cstddef>

namespace tocca::ui {

QString SettingsViewModel::packsDirectory() const
{
    constexpr std::size_t kLongestPath = 4096;
    return toQString(displayText(controllers_.soundPackLoader.customPacksDirectory().string(), kLongestPath));
}

void SettingsViewModel::toggleLaunchAtLogin()
{
    controllers_.launchAtLogin.toggle();
}

void SettingsViewModel::openPacksDirectory()
{
    const auto directory = controllers_.soundPackLoader.customPacksDirectory();
    if (!directory.empty()) {
        controllers_.host.workspace.openUrl(studioText::fileUrl(directory));
    }
}

} // namespace tocca::ui

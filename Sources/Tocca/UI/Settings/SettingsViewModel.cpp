#include "UI/Settings/SettingsViewModel.h"

#include "Audio/Packs/SoundPackLoader.h"
#include "Platform/Desktop/Workspace.h"
#include "Platform/Host.h"
#include "Support/DisplayText.h"
#include "UI/Quick/FileUrl.h"
#include "UI/Studio/StudioText.h"

#include <algorithm>

namespace tocca::ui {

QString SettingsViewModel::volumeReading() const
{
    return toQString(studioText::percentage(controllers_.audioEngine.volume.get()));
}

QStringList SettingsViewModel::presetLabels()
{
    QStringList labels;
    for (const float preset : studioText::kVolumePresets) {
        labels.append(toQString(studioText::presetLabel(preset)));
    }
    return labels;
}

int SettingsViewModel::activePreset() const
{
    const auto& presets = studioText::kVolumePresets;
    const auto* const active = std::find_if(presets.begin(), presets.end(), [this](float preset) {
        return studioText::isPresetActive(preset, controllers_.audioEngine.volume.get());
    });
    return active == presets.end() ? -1 : static_cast<int>(active - presets.begin());
}

QString SettingsViewModel::lubeReading() const
{
    return toQString(studioText::lubeReading(controllers_.audioEngine.lubeLevel.get()));
}

QString SettingsViewModel::deskSurfaceDescription() const
{
    return toQString(controllers_.audioEngine.deskSurface.get().description());
}

QString SettingsViewModel::mouseProfileDescription() const
{
    return toQString(controllers_.audioEngine.mouseProfile.get().description());
}

QString SettingsViewModel::packsDirectory() const
{
    constexpr std::size_t kLongestPath = 4096;
    return toQString(displayText(controllers_.soundPackLoader.customPacksDirectory().string(), kLongestPath));
}

void SettingsViewModel::choosePreset(int index)
{
    const auto& presets = studioText::kVolumePresets;
    if (index >= 0 && static_cast<std::size_t>(index) < presets.size()) {
        controllers_.audioEngine.volume.set(presets.at(static_cast<std::size_t>(index)));
    }
}

void SettingsViewModel::toggleLaunchAtLogin()
{
    controllers_.launchAtLogin.toggle();
}

void SettingsViewModel::openPacksDirectory()
{
    const auto directory = controllers_.soundPackLoader.customPacksDirectory();
    if (!directory.empty()) {
        controllers_.host.workspace.openUrl(fileUrl::of(directory));
    }
}

} // namespace tocca::ui

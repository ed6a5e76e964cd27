#include "UI/Studio/Acoustics/AcousticsViewModel.h"

#include "UI/Studio/StudioText.h"

#include <algorithm>

namespace tocca::ui {
namespace {

void toggle(Published<bool>& setting)
{
    setting.set(!setting.get());
}

template <class Catalogue>
QStringList rawValues()
{
    QStringList values;
    for (const Catalogue value : Catalogue::allCases) {
        values.append(toQString(value.rawValue()));
    }
    return values;
}

template <class Catalogue>
Catalogue caseAt(int index)
{
    return Catalogue::allCases.at(static_cast<std::size_t>(index));
}

} // namespace

AcousticsViewModel::AcousticsViewModel(const Controllers& controllers)
    : engine_(controllers.audioEngine)
    , notchHUD_(controllers.notchHUD)
    , underglow_(controllers.underglow)
{}

QString AcousticsViewModel::volumeReading() const
{
    return toQString(studioText::percentage(engine_.volume.get()));
}

QStringList AcousticsViewModel::presetLabels()
{
    QStringList labels;
    for (const float preset : studioText::kVolumePresets) {
        labels.append(toQString(studioText::presetLabel(preset)));
    }
    return labels;
}

int AcousticsViewModel::activePreset() const
{
    const auto& presets = studioText::kVolumePresets;
    const auto* const active = std::find_if(presets.begin(), presets.end(), [this](float preset) {
        return studioText::isPresetActive(preset, engine_.volume.get());
    });
    return active == presets.end() ? -1 : static_cast<int>(active - presets.begin());
}

QString AcousticsViewModel::lubeReading() const
{
    return toQString(studioText::lubeReading(engine_.lubeLevel.get()));
}

QStringList AcousticsViewModel::deskSurfaces()
{
    return rawValues<audio::AcousticDeskSurface>();
}

QString AcousticsViewModel::deskSurfaceDescription() const
{
    return toQString(engine_.deskSurface.get().description());
}

QStringList AcousticsViewModel::mouseProfiles()
{
    return rawValues<audio::MouseSwitchProfile>();
}

QString AcousticsViewModel::mouseProfileDescription() const
{
    return toQString(engine_.mouseProfile.get().description());
}

QStringList AcousticsViewModel::underglowThemes()
{
    return rawValues<UnderglowTheme>();
}

void AcousticsViewModel::setVolume(double volume)
{
    engine_.volume.set(static_cast<float>(volume));
}

void AcousticsViewModel::choosePreset(int index)
{
    engine_.volume.set(studioText::kVolumePresets.at(static_cast<std::size_t>(index)));
}

void AcousticsViewModel::togglePresenceEQ()
{
    toggle(engine_.isPresenceEQEnabled);
}

void AcousticsViewModel::toggleUpstroke()
{
    toggle(engine_.playUpstroke);
}

void AcousticsViewModel::toggleSpatialAudio()
{
    toggle(engine_.isSpatialAudioEnabled);
}

void AcousticsViewModel::toggleHaptics()
{
    toggle(engine_.isHapticsEnabled);
}

void AcousticsViewModel::setLubeLevel(double level)
{
    engine_.lubeLevel.set(static_cast<float>(level));
}

void AcousticsViewModel::chooseDeskSurface(int index)
{
    engine_.deskSurface.set(caseAt<audio::AcousticDeskSurface>(index));
}

void AcousticsViewModel::toggleMouseAudio()
{
    toggle(engine_.isMouseAudioEnabled);
}

void AcousticsViewModel::chooseMouseProfile(int index)
{
    engine_.mouseProfile.set(caseAt<audio::MouseSwitchProfile>(index));
}

void AcousticsViewModel::toggleScrollRatchet()
{
    toggle(engine_.isScrollRatchetEnabled);
}

void AcousticsViewModel::toggleNotchHUD()
{
    toggle(notchHUD_.isEnabled);
}

void AcousticsViewModel::toggleUnderglow()
{
    toggle(underglow_.isEnabled);
}

void AcousticsViewModel::chooseUnderglowTheme(int index)
{
    underglow_.currentTheme.set(caseAt<UnderglowTheme>(index));
}

} // namespace tocca::ui

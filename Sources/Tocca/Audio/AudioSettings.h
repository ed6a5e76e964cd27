#pragma once

#include "Audio/AcousticCatalogues.h"
#include "Audio/Packs/SoundPackInfo.h"
#include "Audio/SoundProfile.h"

namespace tocca::audio {

/// One consistent set of the engine's settings, as playback reads it. Their meaning is that of the `AudioEngine` members
/// of the same names.
struct AudioSettings {
    bool isEnabled = true;
    bool playUpstroke = false;
    bool isSpatialAudioEnabled = true;
    bool isHapticsEnabled = true;
    bool isBurstDynamicsEnabled = true;
    bool isPresenceEQEnabled = true;
    bool isMouseAudioEnabled = true;
    bool isScrollRatchetEnabled = true;
    SwitchType currentSwitchType = SwitchType::holyPanda;
    AcousticDeskSurface deskSurface = AcousticDeskSurface::feltDeskmat;
    MouseSwitchProfile mouseProfile = MouseSwitchProfile::kailhGM8;
    float volume = 1.0F;
    float lubeLevel = 0.0F;
    const SoundPackInfo* selectedCustomPack = nullptr; ///< kept by the engine for as long as it lives
};

} // namespace tocca::audio

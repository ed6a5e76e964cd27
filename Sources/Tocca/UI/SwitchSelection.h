#pragma once

#include "Audio/Packs/SoundPackInfo.h"
#include "Audio/SoundProfile.h"

#include <string>

namespace tocca::audio {
class AudioEngine;
}

/// Which sound the engine plays, a built-in switch or an imported pack, and how a person chooses another. Threads: main.
namespace tocca::ui::switchSelection {

[[nodiscard]] bool isSelected(const audio::AudioEngine& engine, audio::SwitchType type);
[[nodiscard]] bool isSelected(const audio::AudioEngine& engine, const audio::SoundPackInfo& pack);

/// Makes a sound the engine's and lets it be heard as a press of the space bar.
void select(audio::AudioEngine& engine, audio::SwitchType type);
void select(audio::AudioEngine& engine, const audio::SoundPackInfo& pack);

/// The name of the imported pack, else of the switch.
[[nodiscard]] std::string activeSwitchName(const audio::AudioEngine& engine);

} // namespace tocca::ui::switchSelection

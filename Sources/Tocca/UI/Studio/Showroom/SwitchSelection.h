#pragma once

#include "UI/Studio/Showroom/ShowroomItem.h"

#include <string>

namespace tocca::audio {
class AudioEngine;
}

namespace tocca::ui {

/// Which sound the engine plays, as the showroom sees it. Threads: main.
namespace switchSelection {

[[nodiscard]] bool isSelected(const ShowroomItem& item, const audio::AudioEngine& engine);

/// Makes the item the engine's sound and lets it be heard as a press of the space bar.
void select(const ShowroomItem& item, audio::AudioEngine& engine);

/// The name of the custom pack, else of the switch.
[[nodiscard]] std::string activeSwitchName(const audio::AudioEngine& engine);

} // namespace switchSelection
} // namespace tocca::ui

#pragma once

#include "Audio/Packs/SoundPackInfo.h"
#include "Audio/SoundProfile.h"
#include "UI/Popover/Packs/CommunityPage.h"

#include <string>
#include <vector>

namespace tocca::audio {
class AudioEngine;
}

namespace tocca::ui {

/// A sound as the popover lists it.
struct SoundPackRow {
    std::string icon;
    std::string title;
    std::string line;
    bool isSelected = false;

    bool operator==(const SoundPackRow&) const = default;
};

/// The sounds that the popover offers. Threads: main.
namespace soundPackRows {

[[nodiscard]] std::vector<SoundPackRow> builtIn(const audio::AudioEngine& engine);

/// The packs of one page.
[[nodiscard]] std::vector<SoundPackRow> community(const audio::AudioEngine& engine,
                                                  const std::vector<audio::SoundPackInfo>& packs,
                                                  const CommunityPage& page);

/// Makes a sound the engine's and lets it be heard as a press of the space bar.
void choose(audio::AudioEngine& engine, audio::SwitchType type);
void choose(audio::AudioEngine& engine, const audio::SoundPackInfo& pack);

} // namespace soundPackRows
} // namespace tocca::ui

#pragma once

#include "Audio/Packs/SoundPackInfo.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tocca::ui::benchmarks {

inline constexpr int kPacks = 10'000;

/// Packs whose names differ, with descriptions of usual length.
[[nodiscard]] inline std::vector<audio::SoundPackInfo> packs(int count)
{
    std::vector<audio::SoundPackInfo> result;
    for (int i = 0; i < count; ++i) {
        const std::string name = "Größe " + std::to_string(i) + " Linear Red";
        result.push_back(
            {.id = "custom_" + name,
             .name = name,
             .description = "Custom Soundpack • Community switch, recorded at home with two microphones",
             .folderURL = "/packs/" + std::to_string(i)});
    }
    return result;
}

/// The text of the search after so many keys: a word that is typed letter by letter, then taken back at once.
[[nodiscard]] inline std::string searchAfter(std::size_t keys)
{
    const std::string word = "microphones 42";
    return word.substr(0, keys % (word.size() + 1));
}

} // namespace tocca::ui::benchmarks

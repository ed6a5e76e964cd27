#pragma once

#include "Audio/SoundProfile.h"
#include "Support/Result.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tocca::render {

/// A key that goes down or comes up. Units: seconds from the beginning.
struct ScoredStroke {
    double time = 0.0;
    std::uint16_t keyCode = 0;
    audio::KeyStrokeAction action = audio::KeyStrokeAction::down;

    bool operator==(const ScoredStroke&) const = default;
};

/// The key that types a character, or that has a name: "space", "enter", "backspace", "tab", "shift".
[[nodiscard]] std::optional<std::uint16_t> keyNamed(std::string_view name);

/// Text as somebody types it, at `wordsPerMinute` of five characters and with the unevenness that `seed` stands for.
/// Characters that no key is known for are left out.
[[nodiscard]] std::vector<ScoredStroke> typed(std::string_view text, double wordsPerMinute,
                                              std::uint64_t seed);

/// Strokes from lines of a time in seconds, a key and, for one that comes up, "up"; empty lines and those that begin with "#" say nothing.
/// Errors: the number of the first line that makes no sense.
[[nodiscard]] Result<std::vector<ScoredStroke>> parseScore(std::string_view lines);

} // namespace tocca::render

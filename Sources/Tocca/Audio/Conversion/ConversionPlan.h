#pragma once

#include "Audio/Conversion/KeyRole.h"
#include "Audio/SoundProfile.h"

#include <optional>
#include <string>
#include <vector>

namespace tocca::audio {

/// A part of a recording. Units: milliseconds from its beginning.
struct Slice {
    double startMs = 0.0;
    double lengthMs = 0.0;

    bool operator==(const Slice&) const = default;
};

/// A sound that a foreign pack has for a key.
struct Take {
    std::string file;           ///< below the pack's root
    std::optional<Slice> slice; ///< the whole file when there is none
    KeyRole role = KeyRole::Typing;
    KeyStrokeAction direction = KeyStrokeAction::down;
    std::string key; ///< what the pack calls it
};

/// What a foreign pack is, and which of its sounds are to be had.
struct ConversionPlan {
    std::string format; ///< in words for people
    std::string name;   ///< empty when the pack does not name itself
    std::vector<Take> takes;
    std::vector<std::string> remarks; ///< what was left out and why, a line each
};

} // namespace tocca::audio

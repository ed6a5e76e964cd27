#pragma once

#include "Instruments/XTestKeyboard.h"

#include <cstdint>
#include <random>
#include <span>
#include <vector>

namespace tocca::instruments {

/// A key that was pressed, and when (seconds on CLOCK_MONOTONIC).
struct Stroke {
    std::uint16_t key = 0; ///< evdev code
    double time = 0.0;
};

/// How fast a typist types.
struct Rhythm {
    double shortest = 0.050; ///< seconds between two presses
    double longest = 0.125;
    double hold = 0.025; ///< seconds from press to release, less than `shortest`
};

/// Presses and releases `keys` one after the other, at random intervals between the rhythm's two.
[[nodiscard]] std::vector<Stroke> type(XTestKeyboard& keyboard, std::span<const std::uint16_t> keys,
                                       const Rhythm& rhythm, std::mt19937& random);

/// Forty different keys that all sound with the recordings of a standard key.
[[nodiscard]] std::span<const std::uint16_t> ordinaryKeys();

} // namespace tocca::instruments

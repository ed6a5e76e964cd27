#pragma once

#include "Audio/AudioSettings.h"

#include <cstdint>

namespace tocca::audio {

/// How one key stroke is to sound, worked out on the thread that heard it.
struct StrokeShape {
    float gain = 1.0F;             ///< linear, 0…1
    float burstPitchOffset = 0.0F; ///< added to the random part of the rate
    float deskRate = 1.0F;
    float lubeFactor = 1.0F;
    float pan = 0.0F; ///< −1 left … +1 right
};

/// Shapes a stroke that comes `interval` seconds after the one before it.
/// Threads: any. Real-time: wait-free.
[[nodiscard]] StrokeShape shapeStroke(const AudioSettings& settings, std::uint16_t keyCode,
                                      double interval) noexcept;

/// A level that the interface set, limited to 0…1; what is not a number counts as 0.
[[nodiscard]] float clampedLevel(float level) noexcept;

} // namespace tocca::audio

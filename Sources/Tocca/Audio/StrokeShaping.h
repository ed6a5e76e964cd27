#pragma once

#include "Audio/AudioSettings.h"
#include "Platform/AudioPlayer.h"

#include <cstdint>
#include <optional>

namespace tocca::audio {

/// A key stroke on its way from the thread that heard it to the player.
struct Stroke {
    KeyCategory category;
    KeyStrokeAction action;
    SwitchType switchType;
    const SoundPackInfo* pack;     ///< if any, instead of the switch
    float burstPitchOffset;        ///< added to the random part of the rate, which is drawn later
    platform::Playback playback{}; ///< its rate is the factor on that
};

/// Shapes the stroke of a key that comes `interval` seconds after the one before it.
/// Threads: any. Real-time: wait-free.
[[nodiscard]] Stroke shapeStroke(const AudioSettings& settings, std::uint16_t keyCode, KeyStrokeAction action,
                                 double interval, std::optional<double> eventTime) noexcept;

/// A level that the interface set, limited to 0…1; what is not a number counts as 0.
[[nodiscard]] float clampedLevel(float level) noexcept;

} // namespace tocca::audio

#include "Audio/StrokeShaping.h"

#include <algorithm>

namespace tocca::audio {

namespace {

// Two strokes this many seconds apart, bounds excluded, are part of a burst; nearer ones are chatter or a chord.
constexpr double kBurstFrom = 0.005;
constexpr double kBurstTo = 0.11;
constexpr float kBurstGain = 1.1F;
constexpr float kBurstPitchOffset = 0.02F;
constexpr float kPresenceGain = 1.06F;
constexpr float kLubeSlowdown = 0.05F;

} // namespace

float clampedLevel(float level) noexcept
{
    return level > 0.0F ? std::min(level, 1.0F) : 0.0F;
}

StrokeShape shapeStroke(const AudioSettings& settings, std::uint16_t keyCode, double interval) noexcept
{
    const bool isBurst = settings.isBurstDynamicsEnabled && interval > kBurstFrom && interval < kBurstTo;
    const float burstGain = isBurst ? kBurstGain : 1.0F;
    const float presenceGain = settings.isPresenceEQEnabled ? kPresenceGain : 1.0F;
    const float volume = clampedLevel(settings.volume);
    return {
        .gain = std::min(burstGain * volume * presenceGain * settings.deskSurface.deskGain(), 1.0F),
        .burstPitchOffset = isBurst ? kBurstPitchOffset : 0.0F,
        .deskRate = settings.deskSurface.deskRate(),
        .lubeFactor = 1.0F - kLubeSlowdown * settings.lubeLevel,
        .pan = settings.isSpatialAudioEnabled ? KeyCategory::spatialPan(keyCode) : 0.0F,
    };
}

} // namespace tocca::audio

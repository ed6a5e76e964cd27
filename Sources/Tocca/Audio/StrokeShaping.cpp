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

Stroke shapeStroke(const AudioSettings& settings, std::uint16_t keyCode, KeyStrokeAction action,
                   double interval, std::optional<double> eventTime) noexcept
{
    const bool isBurst = settings.isBurstDynamicsEnabled && interval > kBurstFrom && interval < kBurstTo;
    const float burstGain = isBurst ? kBurstGain : 1.0F;
    const float presenceGain = settings.isPresenceEQEnabled ? kPresenceGain : 1.0F;
    const float gain =
        burstGain * clampedLevel(settings.volume) * presenceGain * settings.deskSurface.deskGain();
    return {
        .category = KeyCategory::from(keyCode),
        .action = action,
        .switchType = settings.currentSwitchType,
        .pack = settings.selectedCustomPack,
        .burstPitchOffset = isBurst ? kBurstPitchOffset : 0.0F,
        .playback = {.rate = settings.deskSurface.deskRate() * (1.0F - kLubeSlowdown * settings.lubeLevel),
                     .volume = std::min(gain, 1.0F),
                     .pan = settings.isSpatialAudioEnabled ? KeyCategory::spatialPan(keyCode) : 0.0F,
                     .eventTime = eventTime},
    };
}

} // namespace tocca::audio

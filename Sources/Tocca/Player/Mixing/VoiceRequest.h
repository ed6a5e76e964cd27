#pragma once

#include "Player/Decoding/PcmClip.h"

#include <memory>

namespace tocca::player {

/// One recording to be sounded once.
///
/// Units: `eventTime` is in seconds on the platform's clock; `rate` 1 is the recorded speed, pitch follows; `volume` is
/// linear 0…1; `pan` is −1 left … +1 right.
struct VoiceRequest {
    std::shared_ptr<const PcmClip> clip;
    double eventTime = 0.0;
    float rate = 1.0F;
    float volume = 1.0F;
    float pan = 0.0F;
};

} // namespace tocca::player

#pragma once

#include "Platform/AudioPlayer.h"
#include "Player/Decoding/PcmClip.h"

#include <memory>

namespace tocca::player {

/// One recording to be sounded once.
struct VoiceRequest {
    std::shared_ptr<const PcmClip> clip;
    platform::Playback playback; ///< with an event time
};

} // namespace tocca::player

#pragma once

#include "Player/Decoding/PcmClip.h"
#include "Support/Result.h"

namespace tocca::player {

/// Converts a recording to another rate at high quality; at the same rate it is handed back unchanged.
/// Units: Hz. Threads: any. Errors: memory that the conversion could not get.
[[nodiscard]] Result<PcmClip> resampled(PcmClip clip, double sampleRate);

} // namespace tocca::player

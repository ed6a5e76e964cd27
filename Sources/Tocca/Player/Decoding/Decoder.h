#pragma once

#include "Player/Decoding/PcmClip.h"
#include "Support/Result.h"

#include <cstddef>
#include <span>

namespace tocca::player {

/// Limits that every file is held to before memory is taken for it.
struct DecoderLimits {
    std::size_t fileBytes = std::size_t{32} << 20U;
    int minSampleRate = 4000;   ///< Hz
    int maxSampleRate = 384000; ///< Hz
    int channels = 8;
    double seconds = 30.0;                      ///< of which longer recordings keep the first ones
    std::size_t frames = std::size_t{1} << 21U; ///< likewise, for very high rates
    bool keepsLeadingSilence = false;           ///< of an MP3, for those who need its instants
};

/// Decodes a WAV (PCM, float, A-law, µ-law), MP3 or Ogg Vorbis file to floats at the file's own rate.
///
/// More than two channels are mixed down; two equal channels become one. An MP3 loses the silence that its encoder put in
/// front, unless that is to be kept. Recordings longer than the limits are cut there, whatever their headers claim.
/// Threads: any.
/// Errors: a sentence for people when the file is too large, is none of these formats, is damaged before its first
/// sample, claims a rate or a number of channels outside the limits, or holds a sample that is not a number. A file that
/// is damaged further on keeps what comes before.
[[nodiscard]] Result<PcmClip> decode(std::span<const std::byte> file, const DecoderLimits& limits = {});

} // namespace tocca::player

#pragma once

#include "Player/Decoding/SoundFormat.h"

#include <array>
#include <cstddef>

namespace tocca::player {

/// How much of each channel of a file goes to the left and to the right loudspeaker.
///
/// One and two channels stay as they are. Of more, the front pair counts fully, centre and surround channels at −3 dB, the
/// low-frequency channel not at all, and everything is scaled so that no side can exceed full scale.
struct Downmix {
    static constexpr std::size_t kMaxChannels = 8;

    std::array<float, kMaxChannels> left{};
    std::array<float, kMaxChannels> right{};
};

/// The mix of a file with `channelCount` channels (3…8) in the order that its format prescribes.
[[nodiscard]] Downmix downmixOf(SoundFormat format, std::size_t channelCount) noexcept;

} // namespace tocca::player

#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace tocca::instruments {

/// The beginning of a sound.
struct Onset {
    std::size_t frame = 0;
    double leftEnergy = 0.0; ///< sum of squares over the first 10 ms
    double rightEnergy = 0.0;

    /// Where it is heard: −1 left … +1 right.
    [[nodiscard]] double balance() const noexcept;
};

/// Finds where short sounds begin in interleaved stereo audio, also on top of the tail of the one before.
///
/// A sound begins where the energy of the signal's slope rises by 9 dB above its loudest half millisecond of the last
/// 8 ms. What a sound does in its first 30 ms (bump, bottom-out, rebounds) belongs to it, so that two sounds nearer to each
/// other than that count as one.
[[nodiscard]] std::vector<Onset> findOnsets(std::span<const float> stereo, double sampleRate);

} // namespace tocca::instruments

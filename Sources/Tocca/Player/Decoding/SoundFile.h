#pragma once

#include "Player/Decoding/SoundFormat.h"

#include <cstddef>
#include <memory>
#include <span>

namespace tocca::player {

/// A sound file in memory that is open for decoding.
///
/// Threads: any, one at a time.
/// Lifetime: the bytes must outlive it.
class SoundFile {
public:
    SoundFile(std::span<const std::byte> bytes, SoundFormat format);
    ~SoundFile();

    SoundFile(const SoundFile&) = delete;
    SoundFile& operator=(const SoundFile&) = delete;

    /// Whether the file could be opened and holds samples in an encoding that is played.
    [[nodiscard]] bool isOpen() const noexcept;

    /// What the header claims, unchecked. Units: Hz.
    [[nodiscard]] int sampleRate() const noexcept;
    [[nodiscard]] int channelCount() const noexcept;

    /// Decodes the next interleaved frames into `samples` and returns how many frames there were, 0 at the end.
    [[nodiscard]] std::size_t read(std::span<float> samples);

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace tocca::player

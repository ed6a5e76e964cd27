#pragma once

#include <cstddef>
#include <memory>
#include <span>

namespace tocca::player {

/// An MP3 in memory that is open for decoding. What is wrong with it is told to nobody: libmpg123 would write it to standard error.
///
/// Threads: any, one at a time.
/// Lifetime: the bytes must outlive it.
class Mp3Stream {
public:
    explicit Mp3Stream(std::span<const std::byte> bytes);
    ~Mp3Stream();

    Mp3Stream(const Mp3Stream&) = delete;
    Mp3Stream& operator=(const Mp3Stream&) = delete;

    /// Whether a frame of layer 3 was found.
    [[nodiscard]] bool isOpen() const noexcept;

    /// Of the first frame. Units: Hz.
    [[nodiscard]] int sampleRate() const noexcept;
    [[nodiscard]] int channelCount() const noexcept;

    /// Decodes the next interleaved frames into `samples` and returns how many frames there were, 0 at the end, which is also where the
    /// rate or the number of channels changes.
    [[nodiscard]] std::size_t read(std::span<float> samples);

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace tocca::player

#include "Player/Decoding/FileSoundDecoder.h"

#include "Player/Decoding/Decoder.h"

namespace tocca::player {

Result<platform::DecodedSound> FileSoundDecoder::decode(std::span<const std::byte> file,
                                                        double longestSeconds) const
{
    constexpr std::size_t kLargestFile = std::size_t{64} << 20U;
    constexpr std::size_t kMostFrames = std::size_t{1}
                                        << 24U; // nearly six minutes at 48 kHz, 128 MB in two channels
    const auto clip = player::decode(file, {.fileBytes = kLargestFile,
                                            .seconds = longestSeconds,
                                            .frames = kMostFrames,
                                            .keepsLeadingSilence = true});
    if (!clip) {
        return clip.error();
    }
    platform::DecodedSound sound{.channels = {}, .sampleRate = clip.value().sampleRate()};
    for (std::size_t channel = 0; channel < clip.value().channelCount(); ++channel) {
        const auto frames = clip.value().channel(channel);
        sound.channels.emplace_back(frames.begin(), frames.end());
    }
    return sound;
}

} // namespace tocca::player

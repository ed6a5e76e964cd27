#include "Player/Decoding/Resampler.h"

#include <soxr.h>

#include <array>
#include <cmath>
#include <string>
#include <utility>

namespace tocca::player {

Result<PcmClip> resampled(PcmClip clip, double sampleRate)
{
    if (clip.sampleRate() == sampleRate) {
        return clip;
    }
    const auto channelCount = static_cast<unsigned>(clip.channelCount());
    const double ratio = sampleRate / clip.sampleRate();
    const auto room = static_cast<std::size_t>(std::ceil(static_cast<double>(clip.frameCount()) * ratio)) + 1;
    std::array<std::vector<float>, 2> converted;
    std::array<const void*, 2> in{};
    std::array<void*, 2> out{};
    for (unsigned channel = 0; channel < channelCount; ++channel) {
        converted[channel].resize(room);
        in[channel] = clip.channel(channel).data();
        out[channel] = converted[channel].data();
    }
    const soxr_io_spec_t io = soxr_io_spec(SOXR_FLOAT32_S, SOXR_FLOAT32_S);
    const soxr_quality_spec_t quality = soxr_quality_spec(SOXR_HQ, 0);
    const soxr_runtime_spec_t runtime = soxr_runtime_spec(1);
    std::size_t used = 0;
    std::size_t made = 0;
    const soxr_error_t failure =
        soxr_oneshot(clip.sampleRate(), sampleRate, channelCount, in.data(), clip.frameCount(), &used,
                     out.data(), room, &made, &io, &quality, &runtime);
    if (failure != nullptr) {
        return Error{std::string("It could not be converted to the device's rate: ") + failure + "."};
    }
    converted[0].resize(made);
    if (channelCount == 1) {
        return PcmClip(std::move(converted[0]), sampleRate);
    }
    converted[1].resize(made);
    return PcmClip(std::move(converted[0]), std::move(converted[1]), sampleRate);
}

} // namespace tocca::player

#include "Audio/Conversion/Strike.h"

#include "Support/Loudness.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace tocca::audio {

namespace {

constexpr double kLongestSeconds = 10.0; // what is longer is no key, but the whole recording
constexpr double kOnsetShare = 0.05;     // of the peak
constexpr double kKeptSeconds = 0.001;   // before the onset
constexpr double kMostTrimmedSeconds = 0.120;
constexpr double kTailShare = 0.001; // of the peak, -60 dB
constexpr double kSilence = 0.0001;  // a peak below -80 dBFS is none
constexpr double kFadeInSeconds = 0.0005;
constexpr double kFadeOutSeconds = 0.004;

struct Range {
    std::size_t first;
    std::size_t last; ///< exclusive
};

std::size_t framesIn(double seconds, double sampleRate)
{
    return static_cast<std::size_t>(std::lround(seconds * sampleRate));
}

double magnitude(const platform::DecodedSound& sound, std::size_t frame)
{
    double largest = 0.0;
    for (const auto& channel : sound.channels) {
        largest = std::max(largest, std::abs(static_cast<double>(channel[frame])));
    }
    return largest;
}

Result<Range> rangeOf(const platform::DecodedSound& sound, const std::optional<Slice>& slice)
{
    const std::size_t frameCount = sound.frameCount();
    if (!slice) {
        if (static_cast<double>(frameCount) > kLongestSeconds * sound.sampleRate) {
            return Error{"it is longer than any key sounds"};
        }
        return Range{0, frameCount};
    }
    constexpr double kMilliseconds = 1e-3;
    const double start = slice->startMs * kMilliseconds;
    const double length = slice->lengthMs * kMilliseconds;
    // Each comparison is also false for what is not a number.
    if (!(start >= 0.0) || !(length > 0.0)) {
        return Error{"its times make no sense"};
    }
    if (!(length <= kLongestSeconds)) {
        return Error{"it is longer than any key sounds"};
    }
    if (!(start * sound.sampleRate < static_cast<double>(frameCount))) {
        return Error{"it begins behind the recording's end"};
    }
    const std::size_t first = std::min(framesIn(start, sound.sampleRate), frameCount);
    return Range{first, std::min(frameCount, first + framesIn(length, sound.sampleRate))};
}

std::uint64_t contentOf(const platform::DecodedSound& sound, std::size_t first, std::size_t count)
{
    constexpr std::uint64_t kOffset = 0xCBF29CE484222325U; // FNV-1a, a sample at a time
    constexpr std::uint64_t kPrime = 0x100000001B3U;
    std::uint64_t hash = kOffset;
    for (const auto& channel : sound.channels) {
        for (std::size_t frame = first; frame < first + count; ++frame) {
            hash = (hash ^ std::bit_cast<std::uint32_t>(channel[frame])) * kPrime;
        }
    }
    return hash;
}

} // namespace

Result<Strike> findStrike(const platform::DecodedSound& sound, const std::optional<Slice>& slice)
{
    const auto found = rangeOf(sound, slice);
    if (!found) {
        return found.error();
    }
    const Range range = found.value();
    Strike strike;
    for (std::size_t frame = range.first; frame < range.last; ++frame) {
        strike.peak = std::max(strike.peak, magnitude(sound, frame));
    }
    if (strike.peak < kSilence) {
        return Error{"it is silent"};
    }
    std::size_t onset = range.first;
    while (magnitude(sound, onset) <= kOnsetShare * strike.peak) {
        ++onset;
    }
    std::size_t end = range.last;
    while (magnitude(sound, end - 1) <= kTailShare * strike.peak) {
        --end;
    }
    const std::size_t kept = framesIn(kKeptSeconds, sound.sampleRate);
    const std::size_t silence = onset - range.first;
    strike.silenceMs = static_cast<double>(silence) / sound.sampleRate * 1e3;
    strike.firstFrame = range.first + std::min(silence - std::min(silence, kept),
                                               framesIn(kMostTrimmedSeconds, sound.sampleRate));
    end = std::min(range.last, end + framesIn(kFadeOutSeconds, sound.sampleRate));
    strike.frameCount = end - strike.firstFrame;
    strike.seconds = static_cast<double>(strike.frameCount) / sound.sampleRate;
    strike.content = contentOf(sound, strike.firstFrame, strike.frameCount);

    std::vector<std::vector<double>> channels;
    for (const auto& channel : sound.channels) {
        const auto first = channel.begin() + static_cast<std::ptrdiff_t>(strike.firstFrame);
        channels.emplace_back(first, first + static_cast<std::ptrdiff_t>(strike.frameCount));
    }
    strike.lufs = loudness(channels, sound.sampleRate);
    return strike;
}

std::vector<std::int16_t> finishedStrike(const platform::DecodedSound& sound, const Strike& strike,
                                         double gain)
{
    constexpr double kFullScale = 32767.0;
    const auto fadeIn =
        static_cast<double>(std::max<std::size_t>(framesIn(kFadeInSeconds, sound.sampleRate), 1));
    const auto fadeOut =
        static_cast<double>(std::max<std::size_t>(framesIn(kFadeOutSeconds, sound.sampleRate), 1));
    std::vector<std::int16_t> samples;
    samples.reserve(strike.frameCount * sound.channels.size());
    for (std::size_t i = 0; i < strike.frameCount; ++i) {
        const double rise = std::min(1.0, static_cast<double>(i) / fadeIn);
        const double fall = std::min(1.0, static_cast<double>(strike.frameCount - 1 - i) / fadeOut);
        for (const auto& channel : sound.channels) {
            const double sample = channel[strike.firstFrame + i] * gain * rise * fall * kFullScale;
            samples.push_back(
                static_cast<std::int16_t>(std::lround(std::clamp(sample, -kFullScale, kFullScale))));
        }
    }
    return samples;
}

} // namespace tocca::audio

#include "ClickPack.h"

#include "Instruments/Recording.h"

#include <cmath>
#include <numbers>
#include <stdexcept>
#include <vector>

namespace tocca::latency {

namespace {

/// Stereo: a 3 kHz burst that is at full strength at once and 60 dB down after 10 ms.
std::vector<float> click(double sampleRate)
{
    constexpr double kLength = 0.015; // seconds
    constexpr double kLevel = 0.5;
    constexpr double kFrequency = 3000.0;
    constexpr double kDecay = 690.0; // per second
    const auto frames = static_cast<std::size_t>(kLength * sampleRate);
    std::vector<float> samples;
    samples.reserve(2 * frames);
    for (std::size_t i = 0; i < frames; ++i) {
        const double t = static_cast<double>(i) / sampleRate;
        const double value =
            kLevel * std::exp(-kDecay * t) * std::cos(2.0 * std::numbers::pi * kFrequency * t);
        samples.insert(samples.end(), 2, static_cast<float>(value));
    }
    return samples;
}

} // namespace

ClickPack::ClickPack()
{
    constexpr double kSampleRate = 48000.0;
    if (!instruments::writeWav(click(kSampleRate), kSampleRate, folder_.path() / "press_standard_1.wav")) {
        throw std::runtime_error("cannot write the click");
    }
}

audio::SoundPackInfo ClickPack::info() const
{
    return {.id = "custom_click", .name = "Click", .description = "", .folderURL = folder_.path()};
}

} // namespace tocca::latency

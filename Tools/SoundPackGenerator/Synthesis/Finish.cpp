#include "Synthesis/Finish.h"

#include "Model/Decibel.h"
#include "Synthesis/Rates.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace tocca::soundpack {

namespace {

constexpr double kPi = std::numbers::pi;

// Linear up to half scale; what is louder bends towards 0.7, so that two strokes at once seldom reach full scale.
double bend(double sample)
{
    constexpr double kKnee = 0.5;
    constexpr double kRoom = 0.2;
    const double magnitude = std::abs(sample);
    if (magnitude <= kKnee) {
        return sample;
    }
    return std::copysign(kKnee + kRoom * std::tanh((magnitude - kKnee) / kRoom), sample);
}

std::size_t audibleLength(const std::vector<double>& sound, double silenceDb)
{
    constexpr std::size_t kWindow = 144;
    constexpr std::size_t kShortest = 2880;
    constexpr std::size_t kMargin = 576;
    const double silence = std::pow(gain(silenceDb), 2) * kWindow;
    double energy = 0;
    std::size_t last = 0;
    for (std::size_t n = 0; n < sound.size(); ++n) {
        energy += sound[n] * sound[n];
        if (n >= kWindow) {
            energy -= sound[n - kWindow] * sound[n - kWindow];
        }
        if (energy > silence) {
            last = n;
        }
    }
    return std::min(sound.size(), std::max(kShortest, last + kMargin));
}

void fadeOut(std::vector<double>& sound, double fadeMs)
{
    const auto fade =
        std::min(sound.size(), static_cast<std::size_t>(std::lround(fadeMs * 1e-3 * kSampleRate)));
    for (std::size_t m = 1; m <= fade; ++m) {
        const double x = static_cast<double>(m) / static_cast<double>(fade);
        sound[sound.size() - fade + m - 1] *= 0.5 + 0.5 * std::cos(kPi * x);
    }
}

// A constant would step at both ends; a Hann hump of the same sum does not.
void removeOffset(std::vector<double>& sound)
{
    const auto length = static_cast<double>(sound.size());
    const auto hump = [&](std::size_t n) {
        return 0.5 - 0.5 * std::cos(2 * kPi * (static_cast<double>(n) + 0.5) / length);
    };
    const double sum = std::accumulate(sound.begin(), sound.end(), 0.0);
    double humps = 0;
    for (std::size_t n = 0; n < sound.size(); ++n) {
        humps += hump(n);
    }
    for (std::size_t n = 0; n < sound.size(); ++n) {
        sound[n] -= hump(n) * sum / humps;
    }
}

} // namespace

std::vector<double> finishUnrounded(const std::vector<double>& rendered, double gainDb, const Stroke& stroke)
{
    std::vector<double> sound(rendered.size());
    const double level = gain(gainDb);
    std::ranges::transform(rendered, sound.begin(), [&](double sample) { return bend(level * sample); });
    sound.resize(audibleLength(sound, stroke.silenceDb));
    fadeOut(sound, stroke.fadeMs);
    removeOffset(sound);
    return sound;
}

std::vector<std::int16_t> finish(const std::vector<double>& rendered, double gainDb, const Stroke& stroke)
{
    const std::vector<double> sound = finishUnrounded(rendered, gainDb, stroke);
    std::vector<std::int16_t> samples(sound.size());
    std::ranges::transform(sound, samples.begin(), [](double sample) {
        return static_cast<std::int16_t>(std::lround(sample * 32767));
    });
    return samples;
}

} // namespace tocca::soundpack

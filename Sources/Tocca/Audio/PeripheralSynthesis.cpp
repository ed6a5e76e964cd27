#include "Audio/PeripheralSynthesis.h"

#include "Audio/WavImage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace tocca::audio {

namespace {

constexpr double kSampleRate = 44100.0;

struct ClickRow {
    std::string_view key;
    double duration;
    double freq1;
    double freq2;
    double decay;
    double amplitude;
};

constexpr std::string_view kDefaultClick = "kailhGM8_left";

constexpr std::array kClicks{
    ClickRow{"kailhGM8_left", 0.015, 1800, 3200, 350, 0.8},
    ClickRow{"kailhGM8_right", 0.014, 1650, 2900, 380, 0.75},
    ClickRow{"omron50M_left", 0.012, 2400, 4100, 440, 0.7},
    ClickRow{"omron50M_right", 0.011, 2250, 3800, 460, 0.65},
    ClickRow{"silentOptical_left", 0.018, 650, 950, 220, 0.5},
    ClickRow{"silentOptical_right", 0.018, 600, 900, 220, 0.45},
};
constexpr ClickRow kRatchet{"", 0.006, 2600, 4800, 750, 0.45};

SharedBytes render(const ClickRow& row)
{
    return synthesizeWav(row.duration, row.freq1, row.freq2, row.decay, row.amplitude);
}

} // namespace

SharedBytes synthesizeWav(double duration, double freq1, double freq2, double decay, double amplitude)
{
    constexpr double kTwoPi = 6.283185307179586;
    const auto count = static_cast<std::uint32_t>(duration * kSampleRate);
    std::vector<std::int16_t> samples(count);
    const double omega1 = freq1 * kTwoPi;
    const double omega2 = freq2 * kTwoPi;
    for (std::uint32_t i = 0; i < count; ++i) {
        const double t = i / kSampleRate;
        const double envelope = std::exp(-(t * decay));
        const double s = envelope * (0.6 * std::sin(omega1 * t) + 0.4 * std::sin(omega2 * t)) * amplitude;
        const double x = std::clamp(s * 32000.0, -32767.0, 32767.0);
        samples[i] = static_cast<std::int16_t>(x);
    }
    return std::make_shared<const std::vector<std::byte>>(
        wavImage(samples, 1, static_cast<std::uint32_t>(kSampleRate)));
}

void PeripheralSounds::precompute()
{
    for (const ClickRow& row : kClicks) {
        cachedMouseClicks_[std::string(row.key)] = render(row);
    }
    cachedScrollRatchet_ = render(kRatchet);
}

SharedBytes PeripheralSounds::mouseClick(const std::string& key) const
{
    auto found = cachedMouseClicks_.find(key);
    if (found == cachedMouseClicks_.end()) {
        found = cachedMouseClicks_.find(std::string(kDefaultClick));
    }
    return found == cachedMouseClicks_.end() ? nullptr : found->second;
}

std::string PeripheralSounds::clickKey(MouseSwitchProfile profile, MouseButton button)
{
    return std::string(profile.stem()) + (button == MouseButton::right ? "_right" : "_left");
}

} // namespace tocca::audio

#include "Audio/PeripheralSynthesis.h"

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
constexpr std::uint32_t kBytesPerSample = 2;

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

/// Appends to a little-endian file image.
class LittleEndianWriter {
public:
    explicit LittleEndianWriter(std::vector<std::byte>& bytes)
        : bytes_(bytes)
    {}

    void text(std::string_view text)
    {
        for (const char c : text) {
            bytes_.push_back(static_cast<std::byte>(c));
        }
    }

    template <class Unsigned>
    void number(Unsigned value)
    {
        for (std::size_t i = 0; i < sizeof(Unsigned); ++i) {
            bytes_.push_back(static_cast<std::byte>((std::uint32_t{value} >> (8 * i)) & 0xFFU));
        }
    }

private:
    std::vector<std::byte>& bytes_;
};

SharedBytes render(const ClickRow& row)
{
    return synthesizeWav(row.duration, row.freq1, row.freq2, row.decay, row.amplitude);
}

} // namespace

SharedBytes synthesizeWav(double duration, double freq1, double freq2, double decay, double amplitude)
{
    constexpr double kTwoPi = 6.283185307179586;
    const auto count = static_cast<std::uint32_t>(duration * kSampleRate);
    const std::uint32_t dataSize = count * kBytesPerSample;

    auto bytes = std::make_shared<std::vector<std::byte>>();
    bytes->reserve(44 + dataSize);
    LittleEndianWriter out(*bytes);
    out.text("RIFF");
    out.number(36 + dataSize);
    out.text("WAVE");
    out.text("fmt ");
    out.number(std::uint32_t{16});
    out.number(std::uint16_t{1}); // integer PCM
    out.number(std::uint16_t{1}); // channels
    out.number(static_cast<std::uint32_t>(kSampleRate));
    out.number(static_cast<std::uint32_t>(kSampleRate) * kBytesPerSample);
    out.number(static_cast<std::uint16_t>(kBytesPerSample));
    out.number(std::uint16_t{16}); // bits per sample
    out.text("data");
    out.number(dataSize);

    const double omega1 = freq1 * kTwoPi;
    const double omega2 = freq2 * kTwoPi;
    for (std::uint32_t i = 0; i < count; ++i) {
        const double t = i / kSampleRate;
        const double envelope = std::exp(-(t * decay));
        const double s = envelope * (0.6 * std::sin(omega1 * t) + 0.4 * std::sin(omega2 * t)) * amplitude;
        const double x = std::clamp(s * 32000.0, -32767.0, 32767.0);
        out.number(static_cast<std::uint16_t>(static_cast<std::int16_t>(x)));
    }
    return bytes;
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

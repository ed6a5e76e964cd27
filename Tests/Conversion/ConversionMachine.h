#pragma once

#include "Audio/Conversion/PackIntake.h"
#include "Audio/PackFolder.h"
#include "Audio/Packs/PackLibrary.h"
#include "Instruments/EncodedSound.h"
#include "Platform/Memory/MemoryHost.h"
#include "Player/Decoding/Decoder.h"
#include "Player/Decoding/FileSoundDecoder.h"
#include "Support/Loudness.h"

#include <cmath>
#include <cstddef>
#include <map>
#include <numbers>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tocca::audio {

inline constexpr int kToneRate = 48000;

/// A decaying tone: a key that can be told from others by its pitch. Units: Hz, seconds.
inline std::vector<float> tone(double frequency, double seconds = 0.1, double level = 0.5)
{
    std::vector<float> samples(static_cast<std::size_t>(seconds * kToneRate));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double t = static_cast<double>(i) / kToneRate;
        samples[i] = static_cast<float>(level * std::cos(2 * std::numbers::pi * frequency * t) *
                                        std::exp(-t * 3.0 / seconds));
    }
    return samples;
}

inline std::string fileOf(const std::vector<float>& samples,
                          instruments::Encoding encoding = instruments::Encoding::Wav16)
{
    return platform::memory::textOf(instruments::encoded(encoding, samples, 1, kToneRate));
}

/// A recording with a tone of each pitch at each time. Units: milliseconds, Hz.
inline std::vector<float> sprite(const std::vector<std::pair<double, double>>& tones, double seconds = 3.0)
{
    std::vector<float> samples(static_cast<std::size_t>(seconds * kToneRate));
    for (const auto& [milliseconds, frequency] : tones) {
        const auto key = tone(frequency);
        const auto at = static_cast<std::size_t>(milliseconds / 1e3 * kToneRate);
        for (std::size_t i = 0; i < key.size() && at + i < samples.size(); ++i) {
            samples[at + i] += key[i];
        }
    }
    return samples;
}

/// The pitch of the first 50 ms, to the next 20 Hz.
inline int pitchOf(std::span<const float> samples)
{
    const auto start = samples.first(std::min<std::size_t>(samples.size(), kToneRate / 20));
    int crossings = 0;
    for (std::size_t i = 1; i < start.size(); ++i) {
        crossings += (start[i - 1] < 0.0F) != (start[i] < 0.0F) ? 1 : 0;
    }
    const double frequency =
        crossings * 0.5 * kToneRate / static_cast<double>(std::max<std::size_t>(start.size(), 1));
    return static_cast<int>(std::lround(frequency / 20)) * 20;
}

/// The pitches of a pack's files by name; 0 for one that is silent.
using Pitches = std::map<std::string, int>;

/// A computer with something at /downloads that is to become a pack.
struct ConversionMachine {
    void write(const std::string& path, std::string_view text)
    {
        host.files().write("/downloads/" + path, text);
    }

    void writeTone(const std::string& path, double frequency, double level = 0.5)
    {
        write(path, fileOf(tone(frequency, 0.1, level)));
    }

    /// Prepares it and keeps what has come of it.
    const Result<PreparedPack>& prepare(const std::string& name, const ImportWatch& watch = {})
    {
        PackIntake intake(host.files(), host.fileStore(), host.archives(), decoder);
        prepared = intake.prepare("/downloads/" + name, packs, watch);
        return prepared;
    }

    [[nodiscard]] std::string error() const { return prepared ? "" : prepared.error().describe(); }

    [[nodiscard]] FolderContents contents()
    {
        return prepared ? contentsOf(host.files(), host.fileStore(), prepared.value().path)
                        : FolderContents{};
    }

    [[nodiscard]] std::string text(const std::string& name) { return contents()[name]; }

    [[nodiscard]] player::PcmClip clip(const std::string& name)
    {
        const auto bytes = host.files().read(prepared.value().path / name, std::size_t{1} << 24U);
        return player::decode(*bytes.value()).value();
    }

    [[nodiscard]] Pitches pitches()
    {
        Pitches found;
        for (const auto& [name, bytes] : contents()) {
            if (name.ends_with(".wav") && name.find('/') == std::string::npos) {
                found[name] = pitchOf(clip(name).channel(0));
            }
        }
        return found;
    }

    /// Units: LUFS.
    [[nodiscard]] double loudnessOf(const std::string& name)
    {
        const auto decoded = clip(name);
        std::vector<std::vector<double>> channels;
        for (std::size_t i = 0; i < decoded.channelCount(); ++i) {
            channels.emplace_back(decoded.channel(i).begin(), decoded.channel(i).end());
        }
        return loudness(channels, decoded.sampleRate());
    }

    platform::memory::MemoryHost host;
    player::FileSoundDecoder decoder;
    const std::filesystem::path packs = "/home/user/.local/share/Tocca/CustomSoundPacks";
    Result<PreparedPack> prepared = Error{"nothing was prepared"};
};

} // namespace tocca::audio

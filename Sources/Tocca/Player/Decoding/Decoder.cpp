#include "Player/Decoding/Decoder.h"

#include "Player/Decoding/Downmix.h"
#include "Player/Decoding/SoundFile.h"
#include "Player/Decoding/SoundFormat.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

namespace tocca::player {

namespace {

constexpr std::size_t kChunkSamples = 8192;
// Float files may exceed full scale a little; what is far beyond is noise from a damaged file.
constexpr float kMaxMagnitude = 4.0F;
// Below what float arithmetic is fast with, and far below what can be heard.
constexpr float kSmallest = 1e-20F;

constexpr float kLeadingSilence = 0.0031623F; // −50 dBFS
constexpr double kMaxTrimSeconds = 0.060;
constexpr double kKeptSeconds = 0.0003;

struct Channels {
    std::vector<float> left;
    std::vector<float> right;
};

std::optional<std::string> refusal(const SoundFile& file, const DecoderLimits& limits)
{
    if (file.sampleRate() < limits.minSampleRate || file.sampleRate() > limits.maxSampleRate) {
        return "Its sample rate of " + std::to_string(file.sampleRate()) + " Hz is not supported.";
    }
    if (file.channelCount() < 1 || file.channelCount() > limits.channels) {
        return "Its " + std::to_string(file.channelCount()) + " channels are not supported.";
    }
    return std::nullopt;
}

float tidied(float sample) noexcept
{
    return std::abs(sample) < kSmallest ? 0.0F : std::clamp(sample, -kMaxMagnitude, kMaxMagnitude);
}

void append(std::vector<float>& to, std::span<const float> samples, std::size_t first, std::size_t stride)
{
    const std::size_t before = to.size();
    const std::size_t count = samples.size() / stride;
    to.resize(before + count);
    for (std::size_t i = 0; i < count; ++i) {
        to[before + i] = tidied(samples[first + i * stride]);
    }
}

void appendMixed(Channels& to, std::span<const float> samples, std::size_t channelCount, const Downmix& mix)
{
    for (std::size_t i = 0; i < samples.size(); i += channelCount) {
        float left = 0.0F;
        float right = 0.0F;
        for (std::size_t channel = 0; channel < channelCount; ++channel) {
            left += samples[i + channel] * mix.left[channel];
            right += samples[i + channel] * mix.right[channel];
        }
        to.left.push_back(tidied(left));
        to.right.push_back(tidied(right));
    }
}

Result<Channels> readAll(SoundFile& file, SoundFormat format, std::size_t maxFrames)
{
    const auto channelCount = static_cast<std::size_t>(file.channelCount());
    const Downmix mix = channelCount > 2 ? downmixOf(format, channelCount) : Downmix{};
    std::array<float, kChunkSamples> chunk{};
    Channels channels;
    while (channels.left.size() < maxFrames) {
        const std::size_t wanted = std::min(kChunkSamples / channelCount, maxFrames - channels.left.size());
        const std::size_t got = file.read(std::span(chunk).first(wanted * channelCount));
        const auto samples = std::span<const float>(chunk).first(got * channelCount);
        if (got == 0) {
            break;
        }
        if (!std::all_of(samples.begin(), samples.end(),
                         [](float sample) { return std::isfinite(sample); })) {
            return Error{"It contains samples that are not numbers."};
        }
        if (channelCount > 2) {
            appendMixed(channels, samples, channelCount, mix);
            continue;
        }
        append(channels.left, samples, 0, channelCount);
        if (channelCount == 2) {
            append(channels.right, samples, 1, channelCount);
        }
    }
    return channels;
}

void trimEncoderSilence(Channels& channels, int sampleRate)
{
    const auto isSilent = [&channels](std::size_t frame) {
        return std::abs(channels.left[frame]) < kLeadingSilence &&
               (channels.right.empty() || std::abs(channels.right[frame]) < kLeadingSilence);
    };
    const auto limit = std::min(channels.left.size(), static_cast<std::size_t>(kMaxTrimSeconds * sampleRate));
    std::size_t silent = 0;
    while (silent < limit && isSilent(silent)) {
        ++silent;
    }
    const auto kept = static_cast<std::size_t>(kKeptSeconds * sampleRate);
    if (silent == channels.left.size() || silent <= kept) {
        return;
    }
    const auto removed = static_cast<std::ptrdiff_t>(silent - kept);
    channels.left.erase(channels.left.begin(), channels.left.begin() + removed);
    if (!channels.right.empty()) {
        channels.right.erase(channels.right.begin(), channels.right.begin() + removed);
    }
}

} // namespace

Result<PcmClip> decode(std::span<const std::byte> file, const DecoderLimits& limits)
{
    if (file.empty()) {
        return Error{"The file is empty."};
    }
    if (file.size() > limits.fileBytes) {
        return Error{"The file is larger than " + std::to_string(limits.fileBytes >> 20U) + " MB."};
    }
    const auto format = soundFormatOf(file);
    if (!format) {
        return Error{"The file is neither WAV, MP3 nor Ogg Vorbis."};
    }
    SoundFile opened(file, *format);
    if (!opened.isOpen()) {
        return Error{"The file is damaged or uses an encoding that is not supported."};
    }
    if (auto reason = refusal(opened, limits)) {
        return Error{std::move(*reason)};
    }
    const double seconds = limits.seconds * opened.sampleRate();
    auto decoded = readAll(opened, *format, std::min(limits.frames, static_cast<std::size_t>(seconds)));
    if (!decoded) {
        return decoded.error();
    }
    Channels channels = std::move(decoded.value());
    if (channels.left.empty()) {
        return Error{"The file contains no sound."};
    }
    if (*format == SoundFormat::Mp3 && !limits.keepsLeadingSilence) {
        trimEncoderSilence(channels, opened.sampleRate());
    }
    if (channels.right.empty() || channels.left == channels.right) {
        return PcmClip(std::move(channels.left), opened.sampleRate());
    }
    return PcmClip(std::move(channels.left), std::move(channels.right), opened.sampleRate());
}

} // namespace tocca::player

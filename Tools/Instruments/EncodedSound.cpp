#include "Instruments/EncodedSound.h"

#include <sndfile.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <numbers>
#include <string_view>

namespace tocca::instruments {

namespace {

struct Growing {
    Bytes bytes;
    sf_count_t position = 0;
};

SF_VIRTUAL_IO growingIo()
{
    return {
        .get_filelen = [](void* user) -> sf_count_t {
            return static_cast<sf_count_t>(static_cast<Growing*>(user)->bytes.size());
        },
        .seek = [](sf_count_t offset, int whence, void* user) -> sf_count_t {
            auto& file = *static_cast<Growing*>(user);
            const auto size = static_cast<sf_count_t>(file.bytes.size());
            file.position = offset + (whence == SEEK_CUR ? file.position : whence == SEEK_END ? size : 0);
            return file.position;
        },
        .read = [](void* to, sf_count_t count, void* user) -> sf_count_t {
            auto& file = *static_cast<Growing*>(user);
            const auto left = static_cast<sf_count_t>(file.bytes.size()) - file.position;
            const sf_count_t taken = std::clamp<sf_count_t>(count, 0, left);
            std::memcpy(to, file.bytes.data() + file.position, static_cast<std::size_t>(taken));
            file.position += taken;
            return taken;
        },
        .write = [](const void* from, sf_count_t count, void* user) -> sf_count_t {
            auto& file = *static_cast<Growing*>(user);
            const auto end = static_cast<std::size_t>(file.position + count);
            file.bytes.resize(std::max(file.bytes.size(), end));
            std::memcpy(file.bytes.data() + file.position, from, static_cast<std::size_t>(count));
            file.position += count;
            return count;
        },
        .tell = [](void* user) -> sf_count_t { return static_cast<Growing*>(user)->position; },
    };
}

int formatOf(Encoding encoding)
{
    switch (encoding) {
    case Encoding::Wav16:
        return SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    case Encoding::OggVorbis:
        return SF_FORMAT_OGG | SF_FORMAT_VORBIS;
    case Encoding::Mp3:
        return SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III;
    case Encoding::Flac:
        return SF_FORMAT_FLAC | SF_FORMAT_PCM_16;
    case Encoding::Aiff:
        return SF_FORMAT_AIFF | SF_FORMAT_PCM_16;
    }
    return 0;
}

void appendText(Bytes& to, std::string_view text)
{
    std::transform(text.begin(), text.end(), std::back_inserter(to), [](char c) { return std::byte(c); });
}

template <class Number>
void appendNumber(Bytes& to, Number number)
{
    for (std::size_t i = 0; i < sizeof number; ++i) {
        to.push_back(static_cast<std::byte>(std::uint64_t{number} >> (8 * i)));
    }
}

} // namespace

Bytes wavFile(const WavHeader& header, const Bytes& data)
{
    const auto blockAlign = static_cast<std::uint16_t>(header.channels * header.bits / 8);
    Bytes file;
    appendText(file, "RIFF");
    appendNumber(file, static_cast<std::uint32_t>(36 + data.size()));
    appendText(file, "WAVEfmt ");
    appendNumber(file, std::uint32_t{16});
    appendNumber(file, header.format);
    appendNumber(file, header.channels);
    appendNumber(file, header.sampleRate);
    appendNumber(file, header.sampleRate * blockAlign);
    appendNumber(file, blockAlign);
    appendNumber(file, header.bits);
    appendText(file, "data");
    appendNumber(file, static_cast<std::uint32_t>(data.size()));
    file.insert(file.end(), data.begin(), data.end());
    return file;
}

Bytes floatWav(const std::vector<float>& samples, std::uint16_t channels, std::uint32_t sampleRate)
{
    Bytes data(samples.size() * sizeof(float));
    std::memcpy(data.data(), samples.data(), data.size());
    return wavFile({.format = 3, .channels = channels, .sampleRate = sampleRate, .bits = 32}, data);
}

Bytes encoded(Encoding encoding, const std::vector<float>& samples, int channels, int sampleRate)
{
    SF_VIRTUAL_IO io = growingIo();
    Growing file;
    SF_INFO info{};
    info.samplerate = sampleRate;
    info.channels = channels;
    info.format = formatOf(encoding);
    SNDFILE* const out = sf_open_virtual(&io, SFM_WRITE, &info, &file);
    if (out == nullptr) {
        std::fprintf(stderr, "no encoder: %s\n", sf_strerror(nullptr));
        std::abort();
    }
    // In pieces: what is written at once to an Ogg Vorbis file has to fit the library's stack.
    constexpr std::size_t kFrames = 4096;
    const std::size_t piece = kFrames * static_cast<std::size_t>(channels);
    for (std::size_t at = 0; at < samples.size(); at += piece) {
        const std::size_t count = std::min(piece, samples.size() - at);
        sf_writef_float(out, samples.data() + at, static_cast<sf_count_t>(count) / channels);
    }
    sf_close(out);
    return std::move(file.bytes);
}

std::vector<float> sine(double frequency, double sampleRate, std::size_t frames, double level)
{
    std::vector<float> samples(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        const double turns = frequency * static_cast<double>(i) / sampleRate;
        samples[i] = static_cast<float>(level * std::sin(2.0 * std::numbers::pi * turns));
    }
    return samples;
}

std::vector<float> click(std::size_t frames, float level)
{
    std::vector<float> samples(frames);
    std::uint32_t noise = 1;
    for (std::size_t i = 0; i < frames; ++i) {
        noise = noise * 1664525U + 1013904223U;
        const float white = static_cast<float>(noise >> 8U) / 8388608.0F - 1.0F;
        samples[i] = level * white * std::exp(-static_cast<float>(i) / 2000.0F);
    }
    return samples;
}

} // namespace tocca::instruments

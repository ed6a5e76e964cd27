#include "Output/WavFile.h"

#include "Output/FileError.h"
#include "Synthesis/Rates.h"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <optional>
#include <string_view>

namespace tocca::soundpack {

namespace {

constexpr std::size_t kFormatSize = 16;
constexpr std::size_t kHeaderSize = 44;
constexpr unsigned kBytesPerSample = 2;

void append(std::string& bytes, std::uint32_t value, unsigned count)
{
    for (unsigned i = 0; i < count; ++i) {
        bytes += static_cast<char>((value >> (8 * i)) & 0xFFU);
    }
}

std::uint32_t number(std::string_view bytes, std::size_t at, unsigned count)
{
    std::uint32_t value = 0;
    for (unsigned i = 0; i < count; ++i) {
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + i])) << (8 * i);
    }
    return value;
}

std::optional<WavFile> parse(std::string_view bytes)
{
    const bool known = bytes.size() >= kHeaderSize && bytes.starts_with("RIFF") &&
                       bytes.substr(8, 8) == "WAVEfmt " && bytes.substr(36, 4) == "data" &&
                       number(bytes, 16, 4) == kFormatSize && number(bytes, 20, 2) == 1;
    if (!known || number(bytes, 4, 4) + 8 != bytes.size() ||
        number(bytes, 40, 4) + kHeaderSize != bytes.size()) {
        return std::nullopt;
    }
    WavFile wav{.sampleRate = static_cast<int>(number(bytes, 24, 4)),
                .channels = static_cast<int>(number(bytes, 22, 2)),
                .bitsPerSample = static_cast<int>(number(bytes, 34, 2)),
                .samples = {}};
    if (wav.bitsPerSample == 8 * kBytesPerSample) {
        for (std::size_t at = kHeaderSize; at + 1 < bytes.size(); at += kBytesPerSample) {
            wav.samples.push_back(static_cast<std::int16_t>(number(bytes, at, kBytesPerSample)));
        }
    }
    return wav;
}

} // namespace

std::string wavBytes(std::span<const std::int16_t> samples)
{
    const auto rate = static_cast<std::uint32_t>(kSampleRate);
    const auto dataSize = static_cast<std::uint32_t>(samples.size() * kBytesPerSample);
    std::string bytes;
    bytes.reserve(kHeaderSize + dataSize);
    bytes += "RIFF";
    append(bytes, kHeaderSize - 8 + dataSize, 4);
    bytes += "WAVEfmt ";
    append(bytes, kFormatSize, 4);
    append(bytes, 1, 2); // uncompressed
    append(bytes, 1, 2); // mono
    append(bytes, rate, 4);
    append(bytes, rate * kBytesPerSample, 4);
    append(bytes, kBytesPerSample, 2);
    append(bytes, 8 * kBytesPerSample, 2);
    bytes += "data";
    append(bytes, dataSize, 4);
    for (const std::int16_t sample : samples) {
        append(bytes, static_cast<std::uint16_t>(sample), kBytesPerSample);
    }
    return bytes;
}

Outcome writeFile(const std::filesystem::path& path, const std::string& bytes)
{
    std::filesystem::path partial = path;
    partial += ".partial";
    const auto failed = [&](const char* attempt, int code) {
        std::error_code ignored;
        std::filesystem::remove(partial, ignored);
        return fileError(attempt, path, code);
    };

    errno = 0;
    std::ofstream file(partial, std::ios::binary | std::ios::trunc);
    if (!file) {
        return failed("create", errno);
    }
    // A full disk shows when the buffer is handed over, at the latest in close.
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        return failed("write", errno);
    }
    std::error_code error;
    std::filesystem::rename(partial, path, error);
    if (error) {
        return failed("put in place", error.value());
    }
    return std::monostate{};
}

Result<WavFile> readWav(const std::filesystem::path& path)
{
    errno = 0;
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return fileError("open", path, errno);
    }
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (auto wav = parse(bytes)) {
        return *std::move(wav);
    }
    return fileError("understand as a WAV file", path, 0);
}

} // namespace tocca::soundpack

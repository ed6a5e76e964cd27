#include "Instruments/EncodedSound.h"
#include "Player/Decoding/Decoder.h"
#include "Player/Decoding/Resampler.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <random>
#include <span>
#include <utility>

namespace tocca::player {
namespace {

using instruments::Bytes;

/// Numbers that headers and parsers are most easily confused by.
constexpr std::array<std::uint32_t, 8> kTelling{0, 1, 0x7F, 0xFF, 0x7FFF, 0xFFFF, 0x7FFFFFFF, 0xFFFFFFFF};

void overwrite(Bytes& file, std::size_t at, std::uint32_t value, std::size_t size)
{
    for (std::size_t i = 0; i < size && at + i < file.size(); ++i) {
        file[at + i] = static_cast<std::byte>(value >> (8 * i));
    }
}

/// Damages `file` in one of the ways that files get damaged, or attackers think of. Headers are hit more often.
void mutate(Bytes& file, std::minstd_rand& random)
{
    const auto below = [&random](std::size_t limit) { return limit == 0 ? 0 : random() % limit; };
    const std::size_t at = below(random() % 3 == 0 ? std::min<std::size_t>(file.size(), 128) : file.size());
    const auto iterator = file.begin() + static_cast<std::ptrdiff_t>(at);
    switch (random() % 6) {
    case 0:
        overwrite(file, at, 1U << (random() % 8), 1);
        break;
    case 1:
        overwrite(file, at, static_cast<std::uint32_t>(random()), 4);
        break;
    case 2:
        overwrite(file, at, kTelling[below(kTelling.size())], std::size_t{1} << (random() % 3));
        break;
    case 3:
        file.resize(at);
        break;
    case 4:
        file.erase(iterator, iterator + static_cast<std::ptrdiff_t>(
                                            below(std::min<std::size_t>(64, file.size() - at))));
        break;
    default: {
        const std::size_t from = below(file.size());
        const Bytes piece(file.begin() + static_cast<std::ptrdiff_t>(from),
                          file.begin() + static_cast<std::ptrdiff_t>(
                                             from + below(std::min<std::size_t>(256, file.size() - from))));
        file.insert(iterator, piece.begin(), piece.end());
    }
    }
}

std::uint32_t oggChecksum(std::span<const std::byte> page)
{
    std::uint32_t checksum = 0;
    for (const std::byte byte : page) {
        checksum ^= std::to_integer<std::uint32_t>(byte) << 24U;
        for (int bit = 0; bit < 8; ++bit) {
            checksum = (checksum << 1U) ^ ((checksum & 0x80000000U) != 0 ? 0x04C11DB7U : 0U);
        }
    }
    return checksum;
}

/// Makes the pages of a damaged Ogg file pass their check, without which no damage would reach the codec.
void repairOggPages(Bytes& file)
{
    constexpr std::size_t kHeader = 27;
    constexpr std::size_t kChecksumAt = 22;
    constexpr std::array kCapture{std::byte{'O'}, std::byte{'g'}, std::byte{'g'}, std::byte{'S'}};
    auto page = std::search(file.begin(), file.end(), kCapture.begin(), kCapture.end());
    while (page != file.end()) {
        const auto from = static_cast<std::size_t>(page - file.begin());
        const auto next = std::search(page + 1, file.end(), kCapture.begin(), kCapture.end());
        if (file.size() - from < kHeader) {
            return;
        }
        const auto lengths = std::to_integer<std::size_t>(file[from + kHeader - 1]);
        std::size_t size = kHeader + lengths;
        for (std::size_t i = from + kHeader; i < std::min(from + kHeader + lengths, file.size()); ++i) {
            size += std::to_integer<std::size_t>(file[i]);
        }
        overwrite(file, from + kChecksumAt, 0, 4);
        overwrite(file, from + kChecksumAt,
                  oggChecksum(std::span(file).subspan(from, std::min(size, file.size() - from))), 4);
        page = next;
    }
}

/// Whatever comes out must be safe to convert and to play.
void expectPlayable(const Result<PcmClip>& clip, float highest)
{
    if (!clip) {
        EXPECT_TRUE(clip.error().describe().ends_with("."));
        return;
    }
    ASSERT_GT(clip.value().frameCount(), 0U);
    ASSERT_LE(static_cast<double>(clip.value().frameCount()), 30.1 * clip.value().sampleRate());
    ASSERT_GE(clip.value().sampleRate(), 4000.0);
    ASSERT_LE(clip.value().sampleRate(), 384000.0);
    for (std::size_t channel = 0; channel < clip.value().channelCount(); ++channel) {
        const auto samples = clip.value().channel(channel);
        ASSERT_TRUE(std::all_of(samples.begin(), samples.end(),
                                [highest](float sample) { return std::abs(sample) <= highest; }));
    }
}

class DecoderFuzz : public testing::TestWithParam<instruments::Encoding> {};

TEST_P(DecoderFuzz, SurvivesThousandsOfDamagedFiles)
{
    constexpr unsigned kMutations = 2500;
    const std::array corpus{instruments::encoded(GetParam(), instruments::click(1000), 1, 44100),
                            instruments::encoded(GetParam(), instruments::click(40000), 2, 48000),
                            instruments::encoded(GetParam(), instruments::sine(440, 22050, 20000), 1, 22050)};
    int decoded = 0;
    for (unsigned seed = 0; seed < kMutations; ++seed) {
        SCOPED_TRACE(seed);
        std::minstd_rand random(seed + 1);
        Bytes file = corpus[seed % corpus.size()];
        for (unsigned i = 0; i <= random() % 3; ++i) {
            mutate(file, random);
        }
        if (GetParam() == instruments::Encoding::OggVorbis && seed % 8 != 0) {
            repairOggPages(file);
        }
        auto clip = decode(file);
        expectPlayable(clip, 4.0F);
        decoded += clip ? 1 : 0;
        if (clip && seed % 10 == 0) {
            expectPlayable(resampled(std::move(clip.value()), 48000.0), 16.0F);
        }
    }
    // Otherwise the files would be too broken to reach the codecs.
    EXPECT_GT(decoded, static_cast<int>(kMutations) / 20);
}

INSTANTIATE_TEST_SUITE_P(Formats, DecoderFuzz,
                         testing::Values(instruments::Encoding::Wav16, instruments::Encoding::OggVorbis,
                                         instruments::Encoding::Mp3));

} // namespace
} // namespace tocca::player

#include "Instruments/EncodedSound.h"
#include "Player/Decoding/PcmCache.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tocca::player {
namespace {

constexpr std::size_t kPlenty = std::size_t{1} << 30U;

SharedBytes recording(std::size_t frames = 1000)
{
    return instruments::shared(instruments::floatWav(instruments::click(frames)));
}

TEST(PcmCache, DecodesTheSameBytesOnceAndEqualOnesApart)
{
    PcmCache cache(kPlenty);
    const auto first = recording();
    const auto equal = recording();
    const auto clip = cache.find(first, 48000.0).value();
    EXPECT_EQ(cache.find(first, 48000.0).value(), clip);
    EXPECT_EQ(cache.decodeCount(), 1U);
    EXPECT_NE(cache.find(equal, 48000.0).value(), clip);
    EXPECT_EQ(cache.decodeCount(), 2U);
}

TEST(PcmCache, ConvertsToTheDevicesRateAndAgainWhenThatChanges)
{
    PcmCache cache(kPlenty);
    const auto bytes =
        instruments::shared(instruments::floatWav(instruments::sine(1000, 44100, 44100), 1, 44100));
    const auto first = cache.find(bytes, 48000.0).value();
    EXPECT_EQ(first->sampleRate(), 48000.0);
    EXPECT_NEAR(static_cast<double>(first->frameCount()), 48000.0, 1.0);
    const auto expected = instruments::sine(1000, 48000, 48000);
    for (std::size_t i = 1000; i < 47000; ++i) {
        ASSERT_NEAR(first->channel(0)[i], expected[i], 1e-4) << i;
    }

    EXPECT_EQ(cache.find(bytes, 96000.0).value()->sampleRate(), 96000.0);
    EXPECT_EQ(cache.find(bytes, 48000.0).value()->sampleRate(), 48000.0);
    EXPECT_EQ(cache.decodeCount(), 3U);
}

TEST(PcmCache, GivesUpWhatWasNotAskedForLongestAndAlwaysKeepsTheLatest)
{
    const auto one = recording();
    const auto two = recording();
    const auto three = recording();
    PcmCache sizing(kPlenty);
    ASSERT_TRUE(sizing.find(one, 48000.0));
    const std::size_t cost = sizing.byteCount();

    PcmCache cache(2 * cost + cost / 2);
    const auto ask = [&cache](const SharedBytes& bytes) { ASSERT_TRUE(cache.find(bytes, 48000.0)); };
    ask(one);
    ask(two);
    ask(one);
    ask(three); // two goes
    EXPECT_EQ(cache.byteCount(), 2 * cost);
    ask(one);
    EXPECT_EQ(cache.decodeCount(), 3U);
    ask(two);
    EXPECT_EQ(cache.decodeCount(), 4U);

    const auto large = recording(100000);
    ask(large);
    ask(large);
    EXPECT_EQ(cache.decodeCount(), 5U);
    EXPECT_GT(cache.byteCount(), 400000U);
    ask(one);
    EXPECT_EQ(cache.byteCount(), cost);
}

TEST(PcmCache, ForgetsRecordingsWhoseBytesAreGone)
{
    PcmCache cache(kPlenty);
    auto bytes = recording(5000);
    ASSERT_TRUE(cache.find(bytes, 48000.0));
    bytes.reset();
    const auto other = recording(10);
    ASSERT_TRUE(cache.find(other, 48000.0));
    EXPECT_LT(cache.byteCount(), 1000U);
}

TEST(PcmCache, LooksIntoABrokenFileOnce)
{
    PcmCache cache(kPlenty);
    const auto broken = instruments::shared(instruments::Bytes(100));
    const auto first = cache.find(broken, 48000.0);
    const auto second = cache.find(broken, 48000.0);
    ASSERT_FALSE(first);
    ASSERT_FALSE(second);
    EXPECT_EQ(first.error().describe(), second.error().describe());
    EXPECT_EQ(cache.decodeCount(), 1U);
    EXPECT_FALSE(cache.find(nullptr, 48000.0));
}

} // namespace
} // namespace tocca::player

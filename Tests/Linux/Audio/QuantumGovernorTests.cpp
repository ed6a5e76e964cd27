#include "Platform/Linux/Audio/PipeWire/QuantumGovernor.h"

#include <gtest/gtest.h>

namespace tocca::platform::linux {
namespace {

constexpr double kLater = 50'000.0; // clocks do not begin at 0

/// A governor from 64 to 512 frames with its running total of drop-outs.
class Governed {
public:
    bool dropOut(double at, std::uint64_t count = 1)
    {
        total_ += count;
        return governor.observe(total_, kLater + at);
    }

    bool rest(double at) { return governor.rest(kLater + at); }

    QuantumGovernor governor{64, 512};

private:
    std::uint64_t total_ = 0;
};

TEST(QuantumGovernor, DoublesWithTheThirdDropOutWithinTenSeconds)
{
    Governed output;
    EXPECT_FALSE(output.dropOut(0.0));
    EXPECT_FALSE(output.dropOut(9.0));
    EXPECT_FALSE(output.dropOut(10.5)) << "the first is more than ten seconds ago";
    EXPECT_TRUE(output.dropOut(18.5));
    EXPECT_EQ(output.governor.quantum(), 128);

    EXPECT_FALSE(output.dropOut(20.0)) << "drop-outs before the change count no more";
    EXPECT_TRUE(output.dropOut(21.0, 2));
    EXPECT_EQ(output.governor.quantum(), 256);
}

TEST(QuantumGovernor, LooksOnlyAtNewDropOutsAndStopsAtTheLargestSize)
{
    Governed output;
    EXPECT_FALSE(output.dropOut(0.0, 2));
    for (int i = 1; i < 50; ++i) {
        EXPECT_FALSE(output.dropOut(i * 0.1, 0));
    }
    for (int i = 0; i < 50; ++i) {
        output.dropOut(100.0 + i * 2.0, 5);
    }
    EXPECT_EQ(output.governor.quantum(), 512);
}

TEST(QuantumGovernor, IgnoresWhatAStartOrAChangeOfSizeCauses)
{
    Governed output;
    output.governor.disturb(kLater);
    EXPECT_FALSE(output.dropOut(0.5, 10));
    EXPECT_FALSE(output.dropOut(1.5, 2));
    EXPECT_TRUE(output.dropOut(2.0, 1));
    EXPECT_FALSE(output.dropOut(2.9, 10));
    EXPECT_EQ(output.governor.quantum(), 128);
}

TEST(QuantumGovernor, ComesBackDownAtRestAfterTenCalmMinutesButNeverTwiceToASizeThatFailed)
{
    Governed output;
    output.dropOut(0.0, 3);
    output.dropOut(5.0, 3);
    ASSERT_EQ(output.governor.quantum(), 256);

    EXPECT_FALSE(output.rest(500.0));
    EXPECT_TRUE(output.rest(606.0));
    EXPECT_FALSE(output.rest(607.0)) << "one size at a time";
    ASSERT_EQ(output.governor.quantum(), 128);

    EXPECT_TRUE(output.dropOut(700.0, 3));
    ASSERT_EQ(output.governor.quantum(), 256);
    EXPECT_FALSE(output.rest(100'000.0)) << "128 frames have failed again";
}

} // namespace
} // namespace tocca::platform::linux

#include "Platform/Linux/X11/Input/ServerTime.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tocca::platform::linux {

namespace {

std::uint32_t stampOf(double seconds)
{
    return static_cast<std::uint32_t>(static_cast<std::int64_t>(std::floor(seconds * 1000.0)));
}

TEST(TimeOfEvent, KeepsTheRhythmWhateverTheDelaysOfTheReader)
{
    constexpr double kWrap = 4294967.296; // seconds after which the stamps start again
    for (const double start : {1000.0003, kWrap - 0.5, 3 * kWrap - 0.0002}) {
        double least = 1.0;
        double most = -1.0;
        for (int i = 0; i < 200; ++i) {
            const double happened = start + i * 0.01007;
            const double delay = i % 7 == 0 ? 0.030 : 0.00015; // the reader is late now and then
            const double error = timeOfEvent(happened + delay, stampOf(happened)) - happened;
            least = std::min(least, error);
            most = std::max(most, error);
        }
        EXPECT_GE(least, 0.0) << "before it happened";
        EXPECT_LE(most, 0.001 + 1e-6);
    }
}

TEST(TimeOfEvent, FallsBackOnTheArrivalWhenTheStampIsOfAnotherClock)
{
    constexpr double kArrival = 5000.25;
    for (const double stamped : {0.0, kArrival - 1.5, kArrival + 1.5, kArrival + 2000000.0}) {
        EXPECT_EQ(timeOfEvent(kArrival, stampOf(stamped)), kArrival);
    }
    EXPECT_EQ(timeOfEvent(kArrival, stampOf(kArrival + 0.002)), kArrival) << "never later than the arrival";
}

} // namespace

} // namespace tocca::platform::linux

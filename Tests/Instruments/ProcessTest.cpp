#include "Instruments/Process.h"

#include <gtest/gtest.h>

namespace tocca::instruments {
namespace {

using namespace std::chrono_literals;

TEST(Process, IsReadLineByLineUntilItsEnd)
{
    Process process(
        {"sh", "-c", "echo one; echo two >&2; echo \"$GREETING one${HOME+ home}\"; read unused; exit 3"},
        {{"GREETING", "hello"}, {"HOME", std::nullopt}});
    EXPECT_TRUE(process.waitForLine("one", 10s, 2));
    EXPECT_EQ(process.output(), "one\ntwo\nhello one\n");
    EXPECT_FALSE(process.waitForLine("three", 10s)) << "the output has ended";
    EXPECT_EQ(process.waitForExit(10s), 3);
}

TEST(Process, ReadsMoreThanAPipeHoldsWhileItWaitsForTheEnd)
{
    Process process({"sh", "-c", "head -c 300000 /dev/zero | tr '\\0' x; echo; echo end"});
    EXPECT_EQ(process.waitForExit(10s), 0);
    EXPECT_EQ(process.countLines("end"), 1);
}

} // namespace
} // namespace tocca::instruments

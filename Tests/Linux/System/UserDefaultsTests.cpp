#include "Platform/Linux/System/Files/LinuxUserDefaults.h"
#include "Platform/Linux/System/Threads/LinuxSerialQueues.h"

#include "Instruments/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <thread>

namespace tocca::platform::linux {

namespace {

using instruments::TemporaryDirectory;

TEST(LinuxUserDefaults, KeepsWhatWasSetLastInAFileOfLines)
{
    const TemporaryDirectory directory;
    const auto file = directory.path() / "state" / "tocca" / "defaults";
    LinuxSerialQueues queues;
    LinuxUserDefaults defaults(queues, file);
    defaults.setBool("NotchHUD_Enabled", false);
    defaults.setBool("Another", true);
    defaults.setBool("NotchHUD_Enabled", true);

    const std::string expected = "Another=true\nNotchHUD_Enabled=true\n";
    std::string text;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (text != expected && std::chrono::steady_clock::now() < end) {
        std::this_thread::yield();
        std::ifstream input(file);
        text.assign(std::istreambuf_iterator<char>(input), {});
    }
    EXPECT_EQ(text, expected);
}

TEST(LinuxUserDefaults, LosesInSilenceWhatCannotBeKept)
{
    LinuxSerialQueues queues;
    LinuxUserDefaults nowhere(queues, std::nullopt);
    nowhere.setBool("NotchHUD_Enabled", true);
    LinuxUserDefaults forbidden(queues, "/proc/tocca/defaults");
    forbidden.setBool("NotchHUD_Enabled", true);
}

} // namespace

} // namespace tocca::platform::linux

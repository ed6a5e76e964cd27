#include "EndToEnd/ProgramAtWork.h"
#include "Instruments/MemorySearch.h"
#include "Platform/Linux/Keys/KeyMap.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <fstream>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace tocca::endtoend {
namespace {

constexpr std::size_t kRun = 6;

/// Letters in no order. A is left out: the platform calls it 0, and memory is full of that.
std::vector<std::uint16_t> randomText(unsigned seed)
{
    constexpr std::array<std::uint16_t, 20> kLetters{KEY_B, KEY_C, KEY_D, KEY_E, KEY_F, KEY_G, KEY_H,
                                                     KEY_I, KEY_J, KEY_K, KEY_L, KEY_M, KEY_N, KEY_O,
                                                     KEY_P, KEY_Q, KEY_R, KEY_T, KEY_U, KEY_W};
    constexpr std::size_t kCount = 40;
    std::mt19937 random(seed); // NOLINT(cert-msc51-cpp,cert-msc32-c): the same text each time
    std::vector<std::uint16_t> text(kCount);
    std::generate(text.begin(), text.end(), [&] { return kLetters.at(random() % kLetters.size()); });
    return text;
}

/// The text as the kernel, the X server and the platform number its keys.
std::vector<std::vector<std::uint8_t>> codings(const std::vector<std::uint16_t>& text)
{
    constexpr std::uint16_t kXOffset = 8;
    std::vector<std::vector<std::uint8_t>> result(3);
    for (const std::uint16_t key : text) {
        result[0].push_back(static_cast<std::uint8_t>(key));
        result[1].push_back(static_cast<std::uint8_t>(key + kXOffset));
        result[2].push_back(static_cast<std::uint8_t>(platform::linux::keyCodeOf(key)));
    }
    return result;
}

class Memory : public ProgramAtWork {};

TEST_F(Memory, HoldsNoRunOfTheKeysThatWereTyped)
{
    const std::vector<std::uint16_t> text = randomText(5);
    const instruments::Hearing hearing = typeAndHear(text, {});
    ASSERT_EQ(hearing.heard(), text.size());
    program.signal(SIGSTOP);
    const auto found = instruments::findInMemory(program.id(), codings(text), kRun);
    program.signal(SIGCONT);
    EXPECT_FALSE(found) << "coding " << found->sequence << " from key " << found->first << ", every "
                        << found->stride << " bytes, in " << found->mapping;
}

TEST_F(Memory, IsNeverWrittenToACoreFile)
{
    std::ifstream limits("/proc/" + std::to_string(program.id()) + "/limits");
    std::string line;
    while (std::getline(limits, line) && !line.starts_with("Max core file size")) {
    }
    std::istringstream words(line.substr(std::string_view("Max core file size").size()));
    std::string soft;
    std::string hard;
    words >> soft >> hard;
    EXPECT_EQ(soft + " " + hard, "0 0");
}

TEST(MemorySearch, FindsARunThatAProcessKeeps)
{
    struct Record {
        double time;
        std::uint32_t key;
        std::array<char, 20> more;
    };

    const pid_t child = ::fork();
    if (child == 0) { // before anything here knows the text
        constexpr std::size_t kRecords = 512;
        auto records = std::make_unique<std::array<Record, kRecords>>();
        const std::vector<std::uint16_t> text = randomText(6);
        for (std::size_t i = 0; i < kRun; ++i) {
            records->at(300 + i).key = platform::linux::keyCodeOf(text[20 + i]);
        }
        ::raise(SIGSTOP);
        ::_exit(static_cast<int>(records->at(300).key));
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, WUNTRACED), child);
    auto looked = codings(randomText(6));
    looked.erase(looked.begin(), looked.begin() + 2); // the child's own text is in the kernel's coding
    const auto found = instruments::findInMemory(child, looked, kRun);
    ::kill(child, SIGKILL);
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->stride, sizeof(Record));
    EXPECT_EQ(found->first, 20U);
}

} // namespace
} // namespace tocca::endtoend

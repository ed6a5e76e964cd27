#include "Instruments/TemporaryDirectory.h"
#include "Platform/Linux/System/LinuxRandom.h"
#include "Platform/Linux/System/LinuxStandardOutput.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

class Pipe {
public:
    Pipe() { isOpen_ = ::pipe2(ends_.data(), O_CLOEXEC) == 0; }

    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    ~Pipe()
    {
        closeReader();
        ::close(writer());
    }

    [[nodiscard]] int writer() const { return ends_[1]; }

    void closeReader()
    {
        if (isOpen_) {
            ::close(ends_[0]);
            isOpen_ = false;
        }
    }

    std::string readAll()
    {
        std::string text;
        std::array<char, 4096> chunk{};
        ::fcntl(ends_[0], F_SETFL, O_NONBLOCK);
        for (ssize_t count = 0; (count = ::read(ends_[0], chunk.data(), chunk.size())) > 0;) {
            text.append(chunk.data(), static_cast<std::size_t>(count));
        }
        return text;
    }

private:
    std::array<int, 2> ends_{};
    bool isOpen_ = false;
};

TEST(LinuxStandardOutput, WritesWholeLinesFromSeveralThreads)
{
    constexpr int kLines = 200;
    Pipe pipe;
    LinuxStandardOutput output(pipe.writer());
    std::vector<std::thread> writers;
    for (const char letter : {'a', 'b', 'c'}) {
        writers.emplace_back([&output, letter] {
            for (int i = 0; i < kLines; ++i) {
                output.printLine(std::string(60, letter));
            }
        });
    }
    for (auto& writer : writers) {
        writer.join();
    }
    const std::string text = pipe.readAll();
    ASSERT_EQ(text.size(), 3U * kLines * 61U);
    for (std::size_t at = 0; at < text.size(); at += 61) {
        ASSERT_EQ(text.substr(at, 61), std::string(60, text[at]) + '\n');
    }
}

TEST(LinuxStandardOutput, SurvivesAReaderThatLeavesOrFallsAsleep)
{
    Pipe pipe;
    LinuxStandardOutput output(pipe.writer());
    for (int i = 0; i < 2000; ++i) { // far more than the pipe holds
        output.printLine(std::string(99, 'x'));
    }
    pipe.closeReader();
    output.printLine("nobody reads this");

    LinuxStandardOutput closed(-1);
    closed.printLine("nor this");
    const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    LinuxStandardOutput onFullDisk(full);
    onFullDisk.printLine("nor this");
    ::close(full);
}

TEST(LinuxStandardOutput, ReservesTheStandardDescriptorsOfAProgramStartedWithoutThem)
{
    EXPECT_EXIT(
        {
            ::close(STDOUT_FILENO);
            ::close(STDIN_FILENO);
            LinuxStandardOutput::reserveDescriptors();
            const int next = ::open("/dev/zero", O_RDONLY);
            std::_Exit(next > STDERR_FILENO ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
}

TEST(LinuxRandom, DoesNotRepeatItself)
{
    LinuxRandom random;
    LinuxRandom other;
    std::set<std::uint64_t> seen;
    for (int i = 0; i < 1000; ++i) {
        seen.insert(random.next());
        seen.insert(other.next());
    }
    EXPECT_EQ(seen.size(), 2000U);
}

} // namespace

} // namespace tocca::platform::linux

#include "Instruments/TemporaryDirectory.h"
#include "Model/Packs.h"
#include "Output/PackWriter.h"
#include "Output/WavFile.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/resource.h>
#include <unistd.h>

namespace tocca::soundpack {
namespace {

using instruments::TemporaryDirectory;

namespace fs = std::filesystem;

/// While it lives, no file can grow beyond `bytes`: the way a full disk answers.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{.rlim_cur = bytes, .rlim_max = before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }

    ~SmallDisk() { ::setrlimit(RLIMIT_FSIZE, &before_); }

    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    rlimit before_{};
};

std::string contentOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::size_t countEntries(const fs::path& directory)
{
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(directory), {}));
}

TEST(WavFile, ComesBackAsItWasWritten)
{
    const TemporaryDirectory directory;
    const std::vector<std::int16_t> samples{0, 1, -1, 32767, -32768, 12345};
    ASSERT_TRUE(writeFile(directory.path() / "a.wav", wavBytes(samples)));
    const auto read = readWav(directory.path() / "a.wav");
    ASSERT_TRUE(read);
    EXPECT_EQ(read.value().samples, samples);
    EXPECT_EQ(read.value().sampleRate, 48000);
    EXPECT_EQ(read.value().channels, 1);
    EXPECT_EQ(countEntries(directory.path()), 1U);
}

TEST(WritingAFile, OnAFullDiskKeepsTheOldOneAndSaysSo)
{
    const TemporaryDirectory directory;
    ASSERT_TRUE(writeFile(directory.path() / "a.wav", "old"));
    {
        const SmallDisk full(1000);
        const auto written = writeFile(directory.path() / "a.wav", std::string(100'000, 'x'));
        ASSERT_FALSE(written);
        EXPECT_NE(written.error().describe().find("a.wav: File too large"), std::string::npos)
            << written.error().describe();
    }
    EXPECT_EQ(contentOf(directory.path() / "a.wav"), "old");
    EXPECT_EQ(countEntries(directory.path()), 1U);
}

TEST(WritingPacks, GivesTheSameBytesOnEveryRun)
{
    const TemporaryDirectory directory;
    ASSERT_TRUE(writePacks(packs(), directory.path()));
    const fs::path built = TOCCA_SOUND_PACKS_DIR;
    for (const PackFile& file : filesOf(packs())) {
        const std::string bytes = contentOf(directory.path() / file.path());
        EXPECT_FALSE(bytes.empty());
        EXPECT_TRUE(bytes == contentOf(built / file.path())) << file.path();
    }
}

} // namespace
} // namespace tocca::soundpack

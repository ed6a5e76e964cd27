#include "Instruments/EncodedSound.h"
#include "Instruments/TemporaryDirectory.h"
#include "Instruments/ZipFile.h"
#include "PackCheck/PackCheck.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tocca::packcheck {
namespace {

namespace fs = std::filesystem;
using instruments::TemporaryDirectory;
using testing::HasSubstr;

std::string wav(double seconds = 0.1)
{
    const auto bytes =
        instruments::encoded(instruments::Encoding::Wav16,
                             instruments::sine(1000, 44100, static_cast<std::size_t>(seconds * 44100), 0.5));
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

TEST(PackCheck, SaysOfEachFileWhatBecomesOfIt)
{
    const TemporaryDirectory directory;
    const fs::path pack = directory.path() / "Board";
    fs::create_directories(pack / "sub");
    TemporaryDirectory::write(pack / "press_standard.wav", wav());
    TemporaryDirectory::write(pack / "backspace.wav", wav());
    TemporaryDirectory::write(pack / "Loud.WAV", wav());
    TemporaryDirectory::write(pack / "release.ogg", "no sound");
    TemporaryDirectory::write(pack / "tocca_meta.json", "{}");
    const auto findings = check(pack);
    ASSERT_TRUE(findings) << findings.error().describe();
    const std::string& text = findings.value().text;
    EXPECT_THAT(text, HasSubstr("press_standard.wav  press_standard; WAV, 44100 Hz, mono, 100 ms, "));
    EXPECT_THAT(text, HasSubstr("peak -6.0 dBFS"));
    EXPECT_THAT(text, HasSubstr("backspace.wav  press_space"));
    EXPECT_THAT(text, HasSubstr("Loud.WAV  ignored"));
    EXPECT_THAT(text, HasSubstr("release.ogg  release_standard; cannot be played"));
    EXPECT_THAT(text, HasSubstr("sub/  ignored"));
    EXPECT_TRUE(findings.value().canBeHeard);
    EXPECT_EQ(findings.value().problems, 1);
}

TEST(PackCheck, SaysWhatAConversionWouldDoAndChangesNothing)
{
    const TemporaryDirectory directory;
    const auto archive = directory.path() / "Board.zip";
    TemporaryDirectory::write(archive, instruments::zipFile({{.path = "press/1.wav", .bytes = wav()},
                                                             {.path = "press/2.wav", .bytes = "no sound"}}));
    const auto findings = check(archive);
    ASSERT_TRUE(findings) << findings.error().describe();
    EXPECT_THAT(findings.value().text, HasSubstr("A foreign pack"));
    EXPECT_THAT(findings.value().text, HasSubstr("press/2.wav: The file is neither"));
    EXPECT_THAT(findings.value().text, HasSubstr("Pressed keys: 1 standard"));
    EXPECT_TRUE(findings.value().canBeHeard);
    EXPECT_EQ(std::distance(fs::directory_iterator(directory.path()), fs::directory_iterator()), 1);

    EXPECT_FALSE(check(directory.path() / "missing"));
    TemporaryDirectory::write(archive, "no archive");
    EXPECT_FALSE(check(archive));
}

} // namespace
} // namespace tocca::packcheck

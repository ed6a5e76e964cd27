#include "Conversion/ConversionMachine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tocca::audio {
namespace {

using testing::HasSubstr;

const Pitches kNoReleases{{"release_standard_none.wav", 0}};

Pitches with(Pitches presses, const Pitches& others)
{
    presses.insert(others.begin(), others.end());
    return presses;
}

struct FormatRow {
    const char* name;
    void (*make)(ConversionMachine&);
    Pitches expected;
    std::vector<const char*> reported;
};

const Pitches kFourKeys{{"press_standard_01.wav", 400},
                        {"press_standard_02.wav", 600},
                        {"press_space_01.wav", 1000},
                        {"press_enter_01.wav", 1400},
                        {"press_back_01.wav", 1800}};
const Pitches kFourReleases{{"release_standard_01.wav", 2200},
                            {"release_space_01.wav", 2600},
                            {"release_enter_01.wav", 3000},
                            {"release_back_01.wav", 3400}};

const FormatRow kFormats[] = {
    {.name = "one recording, sliced",
     .make =
         [](ConversionMachine& machine) {
             machine.write("Board/config.json",
                           R"({"id": "x", "name": "Board \"Pro\"", "key_define_type": "single",
                 "includes_numpad": true, "sound": "sound.wav", "defines": {
                 "16": [100, 150], "30": [400, 150], "57": [700, 150], "28": [1000, 150], "14": [1300, 150],
                 "3612": [1600, 150], "3667": [1900, 150], "29": [2200, 150], "31": null, "999": [99000, 100],
                 "x": [1, 2], "32": [400, 150], "33": ["1", 2]}})");
             machine.write("Board/sound.wav", fileOf(sprite({{100, 400},
                                                             {400, 600},
                                                             {700, 1000},
                                                             {1000, 1400},
                                                             {1300, 1800},
                                                             {1600, 3000},
                                                             {1900, 3200},
                                                             {2200, 3400}})));
             machine.write("Board/LICENSE.txt", "CC0");
         },
     .expected = with(kFourKeys, kNoReleases),
     .reported = {"999: it begins behind", "x: this is no key's code", "32: it sounds the same",
                  "33: its times", "sound.wav at 700.0 ms"}},
    {.name = "one recording as Ogg Vorbis, written by hand",
     .make =
         [](ConversionMachine& machine) {
             machine.write("Board/Config.json",
                           "\xEF\xBB\xBF{\r\n // mine\r\n'name': \"Board\",\r\n"
                           "\"key_define_type\": \"single\", \"sound\": \".\\\\Sound.OGG\","
                           "\"defines\": {\"16\": [100, 150,], \"30\": [400, 150], \"17\": [NaN, 5],"
                           "\"57\": [700, 150], \"28\": [1000, 150], \"14\": [1300, 150],},\r\n}\r\n");
             machine.write("Board/sound.ogg",
                           fileOf(sprite({{100, 400}, {400, 600}, {700, 1000}, {1000, 1400}, {1300, 1800}}),
                                  instruments::Encoding::OggVorbis));
         },
     .expected = with(kFourKeys, kNoReleases),
     .reported = {"17: its times make no sense"}},
    {.name = "a file for each key",
     .make =
         [](ConversionMachine& machine) {
             machine.write("Board/config.json",
                           R"({"name": "Board", "key_define_type": "multi", "sound": "gone.wav",
                 "defines": {"16": "q.wav", "30": "sub/a.mp3", "57": "space.wav", "3612": "kp.wav", "3667": "del.wav",
                             "31": null, "32": "missing.wav", "33": ""}})");
             machine.writeTone("Board/q.wav", 400);
             machine.write("Board/sub/a.mp3", fileOf(tone(600), instruments::Encoding::Mp3));
             machine.writeTone("Board/space.wav", 1000);
             machine.writeTone("Board/kp.wav", 1400);
             machine.writeTone("Board/del.wav", 1800);
         },
     .expected = with(kFourKeys, kNoReleases),
     .reported = {"32: there is no file “missing.wav”"}},
    {.name = "the later version",
     .make =
         [](ConversionMachine& machine) {
             machine.write(
                 "Board/config.json",
                 R"({"name": "Board", "version": 2, "key_define_type": "multi", "sound": "press/G{0-1}.wav",
                 "soundup": "release/G.wav", "defines": {"57": "press/SPACE.wav", "57-up": "release/SPACE.wav",
                 "28": "press/ENTER.wav", "28-up": "release/ENTER.wav", "14": "press/BACK.wav", "14-up": "release/BACK.wav",
                 "15": "press/G{0-9999999}.wav"}})");
             machine.writeTone("Board/press/G0.wav", 400);
             machine.writeTone("Board/press/G1.wav", 600);
             machine.writeTone("Board/press/SPACE.wav", 1000);
             machine.writeTone("Board/press/ENTER.wav", 1400);
             machine.writeTone("Board/press/BACK.wav", 1800);
             machine.writeTone("Board/release/G.wav", 2200);
             machine.writeTone("Board/release/SPACE.wav", 2600);
             machine.writeTone("Board/release/ENTER.wav", 3000);
             machine.writeTone("Board/release/BACK.wav", 3400);
         },
     .expected = with(kFourKeys, kFourReleases),
     .reported = {"15: “press/G{0-9999999}.wav” stands for no reasonable number"}},
    {.name = "times for press and release",
     .make =
         [](ConversionMachine& machine) {
             machine.write("Board/config.json", R"({"name": "Board", "definition_method": "single",
                 "audio_file": "sound.wav", "definitions": {
                 "KeyA": {"timing": [[100, 250], [1600, 1750]]}, "Digit1": {"timing": [[400, 550]]},
                 "Space": {"timing": [[700, 850], [1900, 2050]]}, "Enter": {"timing": [[1000, 1150], [2200, 2350]]},
                 "Backspace": {"timing": [[1300, 1450], [2500, 2650]]}, "KeyB": {"timing": [[900, 100], "x"]},
                 "ShiftLeft": {"timing": [[0, 5]]}, "KeyC": 5}})");
             machine.write("Board/sound.wav", fileOf(sprite({{100, 600},
                                                             {400, 400},
                                                             {700, 1000},
                                                             {1000, 1400},
                                                             {1300, 1800},
                                                             {1600, 2200},
                                                             {1900, 2600},
                                                             {2200, 3000},
                                                             {2500, 3400}})));
         },
     .expected = with(kFourKeys, kFourReleases), // by name, Digit1 comes first
     .reported = {"KeyB: its times make no sense", "KeyB: its times are not two numbers"}},
    {.name = "a map of files down and up",
     .make =
         [](ConversionMachine& machine) {
             machine.write("Board/pack.json",
                           R"({"sounds": {"a": {"down": "a.wav", "up": "up.wav"}, "b": {"down": ["b.wav"]},
                 "space": {"down": "s.wav", "up": "su.wav"}, "enter": {"down": "e.wav", "up": "eu.wav"},
                 "Backspace": {"down": "b2.wav", "up": "bu.wav"}, "F1": "none.wav"}})");
             machine.writeTone("Board/a.wav", 400);
             machine.writeTone("Board/b.wav", 600);
             machine.writeTone("Board/s.wav", 1000);
             machine.writeTone("Board/e.wav", 1400);
             machine.writeTone("Board/b2.wav", 1800);
             machine.writeTone("Board/up.wav", 2200);
             machine.writeTone("Board/su.wav", 2600);
             machine.writeTone("Board/eu.wav", 3000);
             machine.writeTone("Board/bu.wav", 3400);
         },
     .expected = with(kFourKeys, kFourReleases),
     .reported = {"F1: there is no file"}},
    {.name = "folders for press and release",
     .make =
         [](ConversionMachine& machine) {
             machine.writeTone("Board/press/GENERIC_R0.wav", 400);
             machine.writeTone("Board/press/GENERIC_R1.wav", 600);
             machine.writeTone("Board/press/SPACE.wav", 1000);
             machine.writeTone("Board/press/ENTER.wav", 1400);
             machine.writeTone("Board/press/BACKSPACE.wav", 1800);
             machine.writeTone("Board/release/GENERIC.wav", 2200);
             machine.writeTone("Board/release/SPACE.wav", 2600);
             machine.writeTone("Board/release/ENTER.wav", 3000);
             machine.writeTone("Board/release/BACKSPACE.wav", 3400);
             machine.writeTone("Board/preview/demo.wav", 5000);
             machine.write("Board/press/._GENERIC_R0.wav", "a resource fork");
             machine.write("Board/__MACOSX/press/._SPACE.wav", "a resource fork");
         },
     .expected = with(kFourKeys, kFourReleases),
     .reported = {}},
    {.name = "folders for kinds of keys",
     .make =
         [](ConversionMachine& machine) {
             machine.writeTone("Board/Alphas/1.WAV", 400);
             machine.writeTone("Board/Alphas/2.wav", 600);
             machine.writeTone("Board/Alphas/up/1.wav", 2200);
             machine.writeTone("Board/Spacebar/1.wav", 1000);
             machine.writeTone("Board/Spacebar/1-release.wav", 2600);
             machine.writeTone("Board/Enter/1.wav", 1400);
             machine.writeTone("Board/Enter/release 1.wav", 3000);
             machine.writeTone("Board/Backspace/1.wav", 1800);
             machine.writeTone("Board/Backspace/key_up.wav", 3400);
             machine.writeTone("Board/Modifiers/1.wav", 5000);
         },
     .expected = with(kFourKeys, kFourReleases),
     .reported = {}},
    {.name = "files called by codes",
     .make =
         [](ConversionMachine& machine) {
             machine.writeTone("Board/10-1.wav", 400);
             machine.writeTone("Board/1e-1.wav", 600);
             machine.writeTone("Board/39-1.wav", 1000);
             machine.writeTone("Board/1c-1.wav", 1400);
             machine.writeTone("Board/0e-1.wav", 1800);
             machine.writeTone("Board/1e-0.wav", 2200);
             machine.writeTone("Board/39-0.wav", 2600);
             machine.writeTone("Board/1c-0.wav", 3000);
             machine.writeTone("Board/0e-0.wav", 3400);
             machine.writeTone("Board/60-1.wav", 5000);
             machine.writeTone("Board/2a-1.wav", 5000);
             machine.writeTone("Board/intro.wav", 5000);
         },
     .expected = with(kFourKeys, kFourReleases),
     .reported = {"intro.wav: its name is no key's code"}},
    {.name = "other keys where there are none to type with",
     .make =
         [](ConversionMachine& machine) {
             machine.write("Board/config.json", R"({"key_define_type": "multi", "sound": "",
                 "defines": {"29": "ctrl.wav", "42": "shift.wav", "30": "gone.wav"}})");
             machine.writeTone("Board/ctrl.wav", 400);
             machine.writeTone("Board/shift.wav", 600);
         },
     .expected = with({{"press_standard_01.wav", 400}, {"press_standard_02.wav", 600}}, kNoReleases),
     .reported = {}},
};

TEST(ForeignPacks, BecomePlainOnesWhateverTheirFormat)
{
    for (const FormatRow& row : kFormats) {
        SCOPED_TRACE(row.name);
        ConversionMachine machine;
        row.make(machine);
        const auto came = contentsOf(machine.host.files(), machine.host.fileStore(), "/downloads/Board");
        ASSERT_TRUE(machine.prepare("Board")) << machine.error();

        EXPECT_EQ(machine.pitches(), row.expected);
        const std::string report = machine.text("import-report.txt");
        for (const char* line : row.reported) {
            EXPECT_THAT(report, HasSubstr(line));
        }
        auto contents = machine.contents();
        for (const auto& [path, text] : came) {
            const bool isDebris =
                path.find("._") != std::string::npos || path.find("__MACOSX") != std::string::npos;
            EXPECT_EQ(contents.contains("original/" + path), !isDebris) << path;
            if (!isDebris) {
                EXPECT_EQ(contents["original/" + path], text) << path;
            }
        }
        EXPECT_EQ(contentsOf(machine.host.files(), machine.host.fileStore(), "/downloads/Board"), came)
            << "the source was changed";
    }
}

TEST(ForeignPacks, AreListedUnderTheirNameWithWhatWasFound)
{
    ConversionMachine machine;
    kFormats[0].make(machine);
    ASSERT_TRUE(machine.prepare("Board"));
    EXPECT_EQ(machine.prepared.value().path.filename(), "Board");
    ASSERT_TRUE(machine.host.fileStore().makeDirectories("/list"));
    ASSERT_TRUE(machine.host.fileStore().move(machine.prepared.value().path, "/list/Board"));
    const auto listed = PackLibrary(machine.host.files(), machine.host.fileStore()).packs("/list");
    ASSERT_EQ(listed.value().size(), 1U);
    EXPECT_EQ(listed.value()[0].name, "Board \"Pro\"");
    EXPECT_EQ(
        listed.value()[0].description,
        "Imported from one recording with a time for each key • 2 standard, 1 space, 1 enter, 1 backspace, "
        "no releases");
}

TEST(ForeignPacks, AreAsLoudAsTheBuiltInOnesWithOneGainForAll)
{
    ConversionMachine machine;
    machine.write("Board/config.json", R"({"key_define_type": "multi", "sound": "",
        "defines": {"30": "a.wav", "31": "s.wav", "32": "d.wav", "57": "space.wav"}})");
    machine.writeTone("Board/a.wav", 800, 0.02);
    machine.writeTone("Board/s.wav", 800, 0.03);
    machine.writeTone("Board/d.wav", 800, 0.04);
    machine.writeTone("Board/space.wav", 800, 0.06);
    ASSERT_TRUE(machine.prepare("Board"));

    EXPECT_NEAR(machine.loudnessOf("press_standard_02.wav"), -30.0, 0.3);
    EXPECT_NEAR(machine.loudnessOf("press_space_01.wav"), -30.0 + 20 * std::log10(2.0), 0.3);
    for (const auto& [name, pitch] : machine.pitches()) {
        const auto clip = machine.clip(name);
        for (const float sample : clip.channel(0)) {
            ASSERT_LE(std::abs(sample), 0.9662F) << name;
        }
    }
}

TEST(ForeignPacks, LoseRepetitionsAndWhatDoesNotBelong)
{
    ConversionMachine machine;
    std::string defines;
    for (int code = 2; code <= 53; ++code) {
        const std::string name = std::to_string(code) + ".wav";
        defines += "\"" + std::to_string(code) + "\": \"" + name + "\",";
        machine.writeTone("Board/" + name, 500 + 10 * code, 0.1 + 0.002 * code);
    }
    machine.writeTone("Board/3.wav", 520, 0.104); // the same as 2
    machine.writeTone("Board/4.wav", 540, 0.005);
    machine.write("Board/5.wav", fileOf(tone(550, 1.5)));
    machine.write("Board/config.json",
                  R"({"key_define_type": "multi", "sound": "", "defines": {)" + defines + "}}");
    ASSERT_TRUE(machine.prepare("Board"));

    EXPECT_EQ(machine.pitches().size(), 32 + 1 + 1 + 1) << "standard, enter, back, no releases";
    const std::string report = machine.text("import-report.txt");
    EXPECT_THAT(report, HasSubstr("3: it sounds the same"));
    EXPECT_THAT(report, HasSubstr("4: it is more than 12 LU"));
    EXPECT_THAT(report, HasSubstr("5: it lasts longer than 0.6 s"));
    EXPECT_THAT(report, HasSubstr("enough others are nearer"));
}

} // namespace
} // namespace tocca::audio

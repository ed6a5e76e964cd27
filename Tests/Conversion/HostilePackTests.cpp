#include "Conversion/ConversionMachine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tocca::audio {
namespace {

using testing::HasSubstr;

std::string nested(int levels)
{
    return R"({"key_define_type": "multi", "sound": "a.wav", "defines": )" +
           std::string(static_cast<std::size_t>(levels), '[');
}

TEST(HostilePacks, AreRefusedOrReadInReasonableTimeAndNothingIsLeft)
{
    struct Row {
        const char* name;
        std::string config;
        const char* error; ///< a part of it; empty for a pack that can be used all the same
    };

    const std::string many = [] {
        std::string text = R"({"key_define_type": "single", "sound": "a.wav", "defines": {)";
        for (int i = 0; i < 50000; ++i) {
            text += "\"" + std::to_string(i) + "\": [" + std::to_string(i) + "e-4, 100],";
        }
        return text + "}}";
    }();
    const Row kRows[] = {
        {"100,000 levels", nested(100000), ""},
        {"files elsewhere",
         R"({"key_define_type": "multi", "defines": {"30": "../secret.wav", "31": "/secret.wav", "32": "sub/../../secret.wav"}})",
         "holds no sound that can be used"},
        {"a link to elsewhere", R"({"key_define_type": "multi", "defines": {"30": "link.wav"}})",
         "holds no sound that can be used"},
        {"endless times",
         R"({"key_define_type": "single", "sound": "a.wav", "defines": {"30": [0, 1000000000], "31": [-5, 100], "32": [1e300, 1e300], "33": [NaN, Infinity]}})",
         "holds no sound that can be used"},
        {"a recording that is none",
         R"({"key_define_type": "single", "sound": "config.json", "defines": {"30": [0, 100]}})",
         "holds no sound that can be used"},
        {"types mixed up",
         R"({"key_define_type": "single", "sound": {"a": []}, "defines": [1, 2, 3], "name": 7})",
         "holds no sound that can be used"},
        {"keys without end", many, ""},
        {"no object", "[1, 2]", ""},
        {"cut off", R"({"key_define_type": "single", "sound": )", ""},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        ConversionMachine machine;
        machine.write("secret.wav", fileOf(tone(5000)));
        machine.write("Board/config.json", row.config);
        machine.writeTone("Board/a.wav", 400);
        machine.host.files().makeLink("/downloads/Board/link.wav", "/downloads/secret.wav");
        machine.prepare("Board");
        if (*row.error == '\0') {
            EXPECT_EQ(machine.error(), "");
        } else {
            EXPECT_THAT(machine.error(), HasSubstr(row.error));
            EXPECT_THAT(machine.host.files().list(machine.packs).value(), testing::IsEmpty());
        }
    }
}

TEST(HostilePacks, DoNotGiveTheirNamesTheRunOfTheManifest)
{
    ConversionMachine machine;
    machine.write("Board/config.json",
                  "{\"name\": \"a\\u0000b\\n\\u202E\\\"},\xFF\", \"key_define_type\": \"multi\","
                  "\"defines\": {\"30\": \"a.wav\"}}");
    machine.writeTone("Board/a.wav", 400);
    machine.prepare("Board");
    ASSERT_TRUE(machine.prepared) << machine.error();
    ASSERT_TRUE(machine.host.fileStore().makeDirectories("/list"));
    ASSERT_TRUE(machine.host.fileStore().move(machine.prepared.value().path, "/list/Board"));
    const auto listed = PackLibrary(machine.host.files(), machine.host.fileStore()).packs("/list");
    EXPECT_THAT(listed.value()[0].name, testing::StartsWith("a")) << "the manifest is strict JSON";
    EXPECT_THAT(listed.value()[0].description, testing::StartsWith("Imported from"));
}

TEST(HostilePacks, HaveFoldersOnlySoDeep)
{
    ConversionMachine machine;
    std::string deep = "Deep";
    for (int i = 0; i < 100; ++i) {
        deep += "/d";
    }
    machine.write(deep + "/a.wav", "");
    machine.prepare("Deep");
    EXPECT_THAT(machine.error(), HasSubstr("too deep"));
    EXPECT_THAT(machine.host.files().list(machine.packs).value(), testing::IsEmpty());
}

} // namespace
} // namespace tocca::audio

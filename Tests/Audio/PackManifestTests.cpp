#include "Audio/Packs/PackManifest.h"

#include <gtest/gtest.h>

#include <span>
#include <string>

namespace tocca::audio {
namespace {

Result<PackManifest> parse(const std::string& text)
{
    return PackManifest::parse(std::as_bytes(std::span(text)));
}

std::string nested(std::size_t levels)
{
    return R"({"name":"N","x":)" + std::string(levels, '[') + std::string(levels, ']') + "}";
}

/// A valid manifest of exactly `size` bytes.
std::string padded(std::size_t size)
{
    const std::string text = R"({"name":"N"})";
    return text + std::string(size - text.size(), ' ');
}

TEST(PackManifest, TakesTheTextsOfAnObject)
{
    struct Row {
        const char* text;
        const char* name;
        const char* description;
    };

    constexpr Row kRows[] = {
        {.text = R"({"name":"Alps","description":"Loud"})", .name = "Alps", .description = "Loud"},
        {.text = R"({})", .name = "", .description = ""},
        {.text = R"({"name":"","description":" "})", .name = "", .description = " "},
        {.text = R"({"name":1,"description":["x"]})", .name = "", .description = ""},
        {.text = R"({"name":null,"Name":"X"})", .name = "", .description = ""},
        {.text = R"({"name":"a","name":"b"})", .name = "b", .description = ""},
        {.text = R"({"x":{"name":"inner"}})", .name = "", .description = ""},
        {.text = R"({"\u006eame":"\u00e4\ud83c\udfb9"})", .name = "ä🎹", .description = ""},
        {.text = "\xEF\xBB\xBF{\"name\":\"marked\"}\r\n", .name = "marked", .description = ""},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.text);
        const auto manifest = parse(row.text);
        ASSERT_TRUE(manifest) << manifest.error().describe();
        EXPECT_EQ(manifest.value().name, row.name);
        EXPECT_EQ(manifest.value().description, row.description);
    }
    EXPECT_TRUE(parse(nested(PackManifest::kDeepest - 2)));
    EXPECT_TRUE(parse(padded(PackManifest::kLargest)));
}

TEST(PackManifest, RefusesWhatIsNoStrictObject)
{
    const std::string texts[] = {
        "",
        "null",
        R"([{"name":"N"}])",
        R"({"name":"N"} x)",
        R"({"name":"N",})",
        R"({"name":"N)",
        R"({"name":"\ud800"})",
        "{\"name\":\"\xFF\"}",
        std::string("{\"name\":\"N\"}\0", 13),
        nested(PackManifest::kDeepest),
        padded(PackManifest::kLargest + 1),
    };
    for (const std::string& text : texts) {
        SCOPED_TRACE(text.substr(0, 40));
        const auto manifest = parse(text);
        ASSERT_FALSE(manifest);
        EXPECT_NE(manifest.error().describe(), "");
    }
}

} // namespace
} // namespace tocca::audio

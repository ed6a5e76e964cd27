#include "Instruments/ZipFile.h"
#include "Platform/Linux/System/Files/ZipArchives.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace tocca::platform::linux {
namespace {

using instruments::zipFile;
using Kind = ArchiveEntry::Kind;

SharedBytes bytesOf(const std::string& text)
{
    std::vector<std::byte> bytes(text.size());
    std::transform(text.begin(), text.end(), bytes.begin(), [](char c) { return static_cast<std::byte>(c); });
    return std::make_shared<const std::vector<std::byte>>(std::move(bytes));
}

/// Reads an archive to its end and says what it has come upon, a line each.
std::vector<std::string> readAll(const std::string& file)
{
    auto opened = ZipArchives().open(bytesOf(file));
    if (!opened) {
        return {"not opened"};
    }
    std::vector<std::string> lines;
    for (;;) {
        const auto next = opened.value()->next();
        if (!next) {
            lines.push_back("broken");
            return lines;
        }
        if (!next.value()) {
            return lines;
        }
        const ArchiveEntry& entry = *next.value();
        constexpr std::array kKinds{"file", "folder", "link", "special"};
        lines.push_back(entry.path + ": " + kKinds.at(static_cast<std::size_t>(entry.kind)) +
                        (entry.isEncrypted ? ", encrypted" : ""));
        std::array<std::byte, 7> chunk{};
        Result<std::size_t> count = chunk.size();
        std::size_t total = 0;
        while (count && count.value() > 0) {
            count = opened.value()->read(chunk);
            total += count ? count.value() : 0;
        }
        lines.back() += count ? ", " + std::to_string(total) : ", broken";
    }
}

TEST(ZipArchives, TellWhatIsInThem)
{
    EXPECT_THAT(readAll(zipFile({{.path = "Bü/press.wav", .bytes = std::string(1000, 'x')},
                                 {.path = "Bü/empty.wav", .bytes = ""},
                                 {.path = "../out.wav", .bytes = "x"},
                                 {.path = "link", .bytes = "/etc/passwd", .isLink = true}})),
                testing::ElementsAre("Bü/press.wav: file, 1000", "Bü/empty.wav: file, 0",
                                     "../out.wav: file, 1", testing::StartsWith("link: link")));
    EXPECT_THAT(readAll(zipFile({{.path = "secret.wav", .bytes = "x", .isEncrypted = true}})),
                testing::ElementsAre(testing::StartsWith("secret.wav: file, encrypted")));
}

TEST(ZipArchives, FailWhereTheyAreDamaged)
{
    EXPECT_THAT(
        readAll(zipFile({{.path = "a.wav", .bytes = std::string(1000, 'x'), .hasWrongChecksum = true}})),
        testing::ElementsAre("a.wav: file, broken"));
    EXPECT_THAT(readAll(""), testing::ElementsAre("not opened"));
    EXPECT_THAT(readAll("PK and something else"), testing::ElementsAre("not opened"));
    EXPECT_THAT(readAll(std::string(100000, '\0')), testing::ElementsAre("not opened"));

    const std::string whole = zipFile({{.path = "a.wav", .bytes = std::string(200, 'x')},
                                       {.path = "b.wav", .bytes = std::string(200, 'y')}});
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const auto lines = readAll(whole.substr(0, length));
        const bool isWhole = lines == readAll(whole);
        EXPECT_FALSE(isWhole) << "cut off after " << length << " of " << whole.size() << " bytes";
    }
}

} // namespace
} // namespace tocca::platform::linux

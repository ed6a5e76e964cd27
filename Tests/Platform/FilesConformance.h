#pragma once

#include "Platform/Files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace tocca::platform {

/// What every implementation of `Files` keeps to.
///
/// `Machine` is default constructible and hands out `files()`, an existing empty directory `root()`, and ways to fill it:
/// `makeDirectory(path)`, `write(path, text)` and `makeSpecial(path)`, which makes something that is neither file nor directory.
template <class Machine>
class FilesConformance : public ::testing::Test {
protected:
    static constexpr std::size_t kLimit = 100;

    std::string read(const std::filesystem::path& path)
    {
        const auto bytes = machine_.files().read(path, kLimit);
        if (!bytes) {
            EXPECT_NE(bytes.error().describe(), "") << "an error without a reason";
            return "error";
        }
        std::string text;
        std::transform(bytes.value()->begin(), bytes.value()->end(), std::back_inserter(text),
                       [](std::byte byte) { return static_cast<char>(byte); });
        return text;
    }

    Machine machine_;
};

TYPED_TEST_SUITE_P(FilesConformance);

TYPED_TEST_P(FilesConformance, ReadsRegularFilesUpToTheLimitAndNothingElse)
{
    const auto root = this->machine_.root();
    this->machine_.write(root / "empty", "");
    this->machine_.write(root / "full", std::string(TestFixture::kLimit, 'x'));
    this->machine_.write(root / "larger", std::string(TestFixture::kLimit + 1, 'x'));
    this->machine_.write(root / "nul", std::string("a\0b", 3));
    this->machine_.makeDirectory(root / "directory");
    this->machine_.makeSpecial(root / "special");

    EXPECT_EQ(this->read(root / "empty"), "");
    EXPECT_EQ(this->read(root / "full"), std::string(TestFixture::kLimit, 'x'));
    EXPECT_EQ(this->read(root / "nul"), std::string("a\0b", 3));
    EXPECT_EQ(this->read(root / "larger"), "error");
    EXPECT_EQ(this->read(root / "directory"), "error");
    EXPECT_EQ(this->read(root / "special"), "error");
    EXPECT_EQ(this->read(root / "missing"), "error");
    EXPECT_EQ(this->read(root / "full" / "below"), "error");
}

TYPED_TEST_P(FilesConformance, ListsTheEntriesOfADirectoryAndOfNothingElse)
{
    const auto root = this->machine_.root();
    const auto list = [this](const std::filesystem::path& path) {
        auto names = this->machine_.files().list(path);
        if (!names) {
            return std::vector<std::string>{"error"};
        }
        std::sort(names.value().begin(), names.value().end());
        return names.value();
    };
    EXPECT_EQ(list(root), std::vector<std::string>{});

    this->machine_.makeDirectory(root / "b");
    this->machine_.write(root / "b" / "inner", "");
    this->machine_.write(root / ".hidden", "");
    this->machine_.write(root / "ä.wav", "");
    EXPECT_EQ(list(root), (std::vector<std::string>{".hidden", "b", "ä.wav"}));
    EXPECT_EQ(list(root / "b"), std::vector<std::string>{"inner"});
    EXPECT_EQ(list(root / ".hidden"), std::vector<std::string>{"error"});
    EXPECT_EQ(list(root / "missing"), std::vector<std::string>{"error"});
}

TYPED_TEST_P(FilesConformance, KnowsWhatExists)
{
    const auto root = this->machine_.root();
    this->machine_.makeDirectory(root / "directory");
    this->machine_.write(root / "file", "x");
    const tocca::platform::Files& files = this->machine_.files();
    EXPECT_TRUE(files.exists(root / "directory"));
    EXPECT_TRUE(files.exists(root / "file"));
    EXPECT_FALSE(files.exists(root / "missing"));
    EXPECT_FALSE(files.exists(root / "file" / "below"));
}

REGISTER_TYPED_TEST_SUITE_P(FilesConformance, ReadsRegularFilesUpToTheLimitAndNothingElse,
                            ListsTheEntriesOfADirectoryAndOfNothingElse, KnowsWhatExists);

} // namespace tocca::platform

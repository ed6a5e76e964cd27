#include "Instruments/TemporaryDirectory.h"
#include "Platform/Linux/System/Files/HomeTrash.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace tocca::platform::linux {
namespace {

namespace fs = std::filesystem;
using instruments::TemporaryDirectory;

std::string textOf(const fs::path& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(HomeTrash, KeepsThingsOfOneNameApartAndSaysWhereTheyWere)
{
    const TemporaryDirectory directory;
    const fs::path trash = directory.path() / "data/Trash";
    const char* const kInTrash[] = {"50% Bü", "50% Bü.2", "50% Bü.3"};
    for (const char* name : kInTrash) {
        fs::create_directory(directory.path() / "thing");
        TemporaryDirectory::write(directory.path() / "thing/inner", name);
        ASSERT_TRUE(HomeTrash(trash).put(directory.path() / "thing", "/home/user/packs/50% Bü"));
        EXPECT_FALSE(fs::exists(directory.path() / "thing"));
    }
    for (const char* name : kInTrash) {
        EXPECT_EQ(textOf(trash / "files" / name / "inner"), name);
        EXPECT_THAT(textOf(trash / "info" / (std::string(name) + ".trashinfo")),
                    testing::MatchesRegex("\\[Trash Info\\]\nPath=/home/user/packs/50%25%20B%C3%BC\n"
                                          "DeletionDate=20..-..-..T..:..:..\n"));
    }
    EXPECT_EQ(fs::status(trash).permissions(), fs::perms::owner_all) << "nobody else's business";
}

TEST(HomeTrash, LeavesThingsWhereTheyAreWhenItCannotHaveThem)
{
    const TemporaryDirectory directory;
    EXPECT_FALSE(HomeTrash(directory.path() / "Trash").put(directory.path() / "missing", "/x/missing"));
    EXPECT_TRUE(fs::is_empty(directory.path() / "Trash/info")) << "a note was left";

    TemporaryDirectory::write(directory.path() / "file", "x");
    TemporaryDirectory::write(directory.path() / "thing", "x");
    EXPECT_FALSE(HomeTrash(directory.path() / "file").put(directory.path() / "thing", "/x/thing"));
    EXPECT_TRUE(fs::exists(directory.path() / "thing"));
}

} // namespace
} // namespace tocca::platform::linux

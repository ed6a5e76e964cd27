#include "Audio/ImportMachine.h"
#include "Audio/Packs/PackImportError.h"
#include "Audio/Packs/SoundPackLoader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tocca::audio {
namespace {

using platform::memory::MemoryHost;
using platform::memory::textOf;
using testing::ElementsAre;
using testing::HasSubstr;

struct PackImportTest : testing::Test, ImportMachine {};

/// What a person is told when the import fails, "" when it does not.
std::string complaint(SoundPackLoader& loader, const std::filesystem::path& source)
{
    try {
        loader.importCustomPack(source);
    } catch (const PackImportError& error) {
        return error.what();
    }
    return "";
}

TEST_F(PackImportTest, ReplacesThePackOfThatNameEntirelyButNotItsLoadedSamples)
{
    SoundPackLoader loader(host);
    const auto sampled = [&] {
        const ThreadRoleScope role(ThreadRole::AudioQueue);
        return textOf(
            *loader.sample(kPacks / "Alps", "custom_Alps", KeyCategory::standard, KeyStrokeAction::down));
    };
    EXPECT_EQ(sampled(), "old");

    for (const bool canExchange : {true, false}) {
        host.fileStore().canExchange = canExchange;
        EXPECT_EQ(loader.importCustomPack("/downloads/Alps"), "Alps");
        EXPECT_EQ(contents(kPacks / "Alps"), kNewPack);
        host.files().write("/downloads/Alps/tocca_meta.json", R"({"name":"Alps 2"})");
        EXPECT_EQ(loader.importCustomPack("/downloads/Alps"), "Alps");
        host.settle();
        ASSERT_EQ(loader.availableCustomPacks.get().size(), 1U);
        EXPECT_EQ(loader.availableCustomPacks.get()[0].name, "Alps 2");
        EXPECT_THAT(host.files().list(kPacks).value(), ElementsAre("Alps"));
        EXPECT_EQ(sampled(), "old");
        static_cast<void>(host.fileStore().removeTree("/downloads/Alps/tocca_meta.json"));
    }
}

TEST_F(PackImportTest, StoresUnderTheSourcesOwnNameWithoutExtension)
{
    struct Row {
        const char* folder;
        const char* source;
        const char* stored;
    };

    constexpr Row kRows[] = {
        {.folder = "Pack.v2", .source = "Pack.v2", .stored = "Pack"},
        {.folder = "Two.dots.zip", .source = "Two.dots.zip", .stored = "Two.dots"},
        {.folder = ".hidden", .source = ".hidden", .stored = ".hidden"},
        {.folder = "slash", .source = "slash/", .stored = "slash"},
        {.folder = "dot", .source = "dot/.", .stored = "dot"},
        {.folder = "up", .source = "up/below/..", .stored = "up"},
        {.folder = "target", .source = "link", .stored = "link"},
        {.folder = "line\nbreak\xFF", .source = "line\nbreak\xFF", .stored = "line\nbreak\xFF"},
    };
    const std::filesystem::path downloads = "/downloads";
    host.files().makeDirectory(downloads / "up/below");
    host.files().makeLink(downloads / "link", "target");
    SoundPackLoader loader(host);
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.source);
        host.files().write(downloads / row.folder / "a.wav", "a");
        EXPECT_EQ(loader.importCustomPack(downloads / row.source), row.stored);
        EXPECT_EQ(contents(kPacks / row.stored)["a.wav"], "a");
        EXPECT_EQ(host.fileStore().status(kPacks / row.stored).value().kind, platform::FileKind::Directory);
    }
}

TEST_F(PackImportTest, TakesARegularFileButDoesNotListIt)
{
    SoundPackLoader loader(host);
    host.files().write("/downloads/Cream.zip", "bytes");
    EXPECT_EQ(loader.importCustomPack("/downloads/Cream.zip"), "Cream");
    EXPECT_TRUE(host.files().exists(kPacks / "Cream"));
    EXPECT_THAT(listedIds(), ElementsAre("custom_Alps"));

    host.files().makeDirectory("/downloads/Cream");
    EXPECT_EQ(loader.importCustomPack("/downloads/Cream"), "Cream");
    EXPECT_THAT(listedIds(), ElementsAre("custom_Alps", "custom_Cream"));
}

TEST_F(PackImportTest, RefusesWhatCannotBeImportedAndKeepsTheOldPack)
{
    struct Row {
        const char* name;
        std::filesystem::path source;
        std::string complaint;
        std::function<void(MemoryHost&)> prepare = [](MemoryHost&) {};
    };

    const std::filesystem::path alps = "/downloads/Alps";
    const Row rows[] = {
        {.name = "nothing", .source = "", .complaint = "No such file"},
        {.name = "missing", .source = "/downloads/none", .complaint = "none: No such file"},
        {.name = "dangling",
         .source = "/dangling/Alps",
         .complaint = "Alps: No such file",
         .prepare = [](auto& h) { h.files().makeLink("/dangling/Alps", "/none"); }},
        {.name = "special", .source = alps / "fifo", .complaint = "neither a folder nor a file"},
        {.name = "the root", .source = "/", .complaint = "cannot be the name"},
        {.name = "reserved",
         .source = "/downloads/.tocca-import-9",
         .complaint = "cannot be the name",
         .prepare = [](auto& h) { h.files().makeDirectory("/downloads/.tocca-import-9"); }},
        {.name = "a name of dots",
         .source = "/downloads/...",
         .complaint = "cannot be the name",
         .prepare = [](auto& h) { h.files().makeDirectory("/downloads/..."); }},
        {.name = "the library", .source = kPacks, .complaint = "contains the imported"},
        {.name = "around the library", .source = "/home/user", .complaint = "contains the imported"},
        {.name = "around the library by a link",
         .source = "/Home",
         .complaint = "contains the imported",
         .prepare = [](auto& h) { h.files().makeLink("/Home", "/home/user/.local"); }},
        {.name = "itself", .source = kPacks / "Alps", .complaint = "would replace"},
        {.name = "itself by a link",
         .source = "/links/Alps",
         .complaint = "would replace",
         .prepare = [](auto& h) { h.files().makeLink("/links/Alps", kPacks / "Alps"); }},
        {.name = "inside itself",
         .source = kPacks / "Alps/sub/Alps",
         .complaint = "would replace",
         .prepare = [](auto& h) { h.files().makeDirectory(kPacks / "Alps/sub/Alps"); }},
        {.name = "no home",
         .source = alps,
         .complaint = "no folder for the user's data",
         .prepare = [](auto& h) { h.directories().supportPath.reset(); }},
        {.name = "folders without end",
         .source = alps,
         .complaint = "too deep",
         .prepare =
             [alps](auto& h) {
                 auto deep = alps;
                 for (int i = 0; i < 100; ++i) {
                     deep /= "x";
                 }
                 h.files().makeDirectory(deep);
             }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ImportMachine machine;
        SoundPackLoader loader(machine.host);
        row.prepare(machine.host);
        const auto before = machine.contents(kPacks);
        EXPECT_THAT(complaint(loader, row.source), HasSubstr(row.complaint));
        EXPECT_EQ(machine.contents(kPacks), before);
    }
}

} // namespace
} // namespace tocca::audio

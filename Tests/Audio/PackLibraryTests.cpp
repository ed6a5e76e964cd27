#include "Audio/PackFolder.h"
#include "Audio/Packs/PackLibrary.h"
#include "Audio/Packs/PackStaging.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "Platform/Memory/MemoryHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tocca::audio {
namespace {

using platform::memory::MemoryHost;
using testing::ElementsAre;
using testing::IsEmpty;

const std::filesystem::path kPacks = "/home/user/.local/share/Tocca/CustomSoundPacks";
constexpr const char* kDefaultDescription = "Custom Soundpack • Community switch";

struct PackLibraryTest : testing::Test {
    std::vector<std::string> namesAfterRefresh()
    {
        loader.refreshCustomPacks();
        host.settle();
        std::vector<std::string> names;
        for (const auto& pack : loader.availableCustomPacks.get()) {
            names.push_back(pack.name);
        }
        return names;
    }

    MemoryHost host;
    SoundPackLoader loader{host};
};

TEST_F(PackLibraryTest, TakesNameAndDescriptionFromTheFirstUsableManifest)
{
    struct Row {
        const char* folder;
        const char* manifest; // null: there is none
        const char* fallback;
        const char* name;
        const char* description;
    };

    constexpr Row kRows[] = {
        {"None", nullptr, nullptr, "None", nullptr},
        {"Both", R"({"name":"N","description":"D"})", R"({"name":"F"})", "N", "D"},
        {"EmptyTexts", R"({"name":"","description":""})", R"({"name":"F"})", "EmptyTexts", nullptr},
        {"NoName", R"({"description":"D"})", R"({"name":"F"})", "NoName", "D"},
        {"Broken", R"({"name":)", R"({"name":"F","description":"unused"})", "F", nullptr},
        {"BothBroken", "x", "[]", "BothBroken", nullptr},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.folder);
        const auto packs = std::filesystem::path("/table") / row.folder;
        const auto folder = packs / row.folder;
        host.files().makeDirectory(folder);
        if (row.manifest != nullptr) {
            host.files().write(folder / "tocca_meta.json", row.manifest);
        }
        if (row.fallback != nullptr) {
            host.files().write(folder / "config.json", row.fallback);
        }
        const auto found = PackLibrary(host.files(), host.fileStore()).packs(packs);
        ASSERT_TRUE(found);
        EXPECT_THAT(found.value(),
                    ElementsAre(SoundPackInfo{.id = std::string("custom_") + row.folder,
                                              .name = row.name,
                                              .description = row.description != nullptr ? row.description
                                                                                        : kDefaultDescription,
                                              .isCustom = true,
                                              .folderURL = folder}));
    }
}

TEST_F(PackLibraryTest, ReadsOnlyManifestsThatAreReadableFiles)
{
    host.files().makeSpecial(kPacks / "A/tocca_meta.json");
    host.files().write(kPacks / "A/config.json", R"({"name":"from the fallback"})");
    host.files().write(kPacks / "B/tocca_meta.json", R"({"name":"secret"})");
    host.files().makeUnreadable(kPacks / "B/tocca_meta.json");
    host.files().makeDirectory(kPacks / "C/tocca_meta.json");
    EXPECT_THAT(namesAfterRefresh(), ElementsAre("B", "C", "from the fallback"));
}

TEST_F(PackLibraryTest, ListsEveryFolderAndNothingElse)
{
    host.files().makeDirectory(kPacks / ".hidden");
    host.files().write(kPacks / "file", "x");
    host.files().makeSpecial(kPacks / "fifo");
    host.files().makeDirectory("/elsewhere/pack");
    host.files().makeLink(kPacks / "linked", "/elsewhere/pack");
    host.files().makeLink(kPacks / "dangling", "/nowhere");
    host.files().makeDirectory(kPacks / "unreadable");
    host.files().makeUnreadable(kPacks / "unreadable");
    EXPECT_THAT(namesAfterRefresh(), ElementsAre(".hidden", "linked", "unreadable"));
}

TEST_F(PackLibraryTest, SortsByCodePointsAndKeepsTheOrderOfEqualNames)
{
    for (const char* name : {"alpha", "ä", "Zulu", "🎹", "\uFF21"}) {
        host.files().makeDirectory(kPacks / name);
    }
    host.files().write(kPacks / "second/tocca_meta.json", R"({"name":"Same"})");
    host.files().write(kPacks / "first/tocca_meta.json", R"({"name":"Same"})");

    EXPECT_THAT(namesAfterRefresh(), ElementsAre("Same", "Same", "Zulu", "alpha", "ä", "\uFF21", "🎹"));
    EXPECT_EQ(loader.availableCustomPacks.get()[0].id, "custom_second");
}

TEST_F(PackLibraryTest, ShowsUnprintableNamesSafelyAndKeepsTheirBytes)
{
    const std::string name = "a\n\u202Eb\xFF";
    host.files().makeDirectory(kPacks / name);
    host.files().write(kPacks / "z/tocca_meta.json", R"({"name":"\u0000\u2066)" + std::string(300, 'x') +
                                                         R"(","description":"two\nlines"})");
    EXPECT_THAT(namesAfterRefresh(), ElementsAre("a �b�", "��" + std::string(253, 'x') + "…"));
    const auto& packs = loader.availableCustomPacks.get();
    EXPECT_EQ(packs[0].id, "custom_" + name);
    EXPECT_EQ(packs[0].folderURL, kPacks / name);
    EXPECT_EQ(packs[1].description, "two lines");
}

TEST_F(PackLibraryTest, PublishesOnALaterTurnOfTheMainQueue)
{
    host.files().makeDirectory(kPacks / "Alps");
    SoundPackLoader later{host};
    int publications = 0;
    const auto link = later.availableCustomPacks.onChange([&](const auto&) { ++publications; });
    EXPECT_THAT(later.availableCustomPacks.get(), IsEmpty());
    host.settle();
    EXPECT_EQ(publications, 1) << "construction refreshes";
    EXPECT_EQ(later.availableCustomPacks.get().size(), 1U);

    later.refreshCustomPacks();
    static_cast<void>(host.fileStore().removeTree(kPacks / "Alps"));
    later.refreshCustomPacks();
    EXPECT_EQ(publications, 1);
    host.settle();
    EXPECT_EQ(publications, 3) << "every refresh publishes";
    EXPECT_THAT(later.availableCustomPacks.get(), IsEmpty());

    {
        SoundPackLoader(host).refreshCustomPacks();
    }
    host.settle();
}

TEST_F(PackLibraryTest, KeepsTheListWhenTheFolderCannotBeListed)
{
    EXPECT_EQ(loader.customPacksDirectory(), kPacks);
    EXPECT_TRUE(host.files().exists(kPacks)) << "asking for it makes it";
    host.files().makeDirectory(kPacks / "Alps");
    EXPECT_THAT(namesAfterRefresh(), ElementsAre("Alps"));

    host.files().makeUnreadable(kPacks);
    EXPECT_THAT(namesAfterRefresh(), ElementsAre("Alps"));

    host.fileStore().isReadOnly = true;
    host.directories().supportPath = "/read-only";
    EXPECT_EQ(loader.customPacksDirectory(), "/read-only/Tocca/CustomSoundPacks");
    EXPECT_THAT(namesAfterRefresh(), ElementsAre("Alps"));

    host.directories().supportPath.reset();
    EXPECT_EQ(loader.customPacksDirectory(), "");
    EXPECT_THAT(namesAfterRefresh(), ElementsAre("Alps"));
}

TEST_F(PackLibraryTest, ClearsUpAfterImportsThatNeverEnded)
{
    // One was still copying, one had just set the old pack aside, one had both in place already.
    host.files().write(kPacks / ".tocca-import-1/new/Growing/a.wav", "half");
    host.files().write(kPacks / ".tocca-import-2/old/Alps/a.wav", "old");
    host.files().write(kPacks / ".tocca-import-2/new/Alps/a.wav", "new");
    host.files().write(kPacks / ".tocca-import-3/old/Cream/a.wav", "old");
    host.files().write(kPacks / "Cream/a.wav", "new");

    EXPECT_THAT(namesAfterRefresh(), ElementsAre("Alps", "Cream"));
    EXPECT_EQ(
        contentsOf(host.files(), host.fileStore(), kPacks),
        (FolderContents{
            {"Alps", "(folder)"}, {"Alps/a.wav", "old"}, {"Cream", "(folder)"}, {"Cream/a.wav", "new"}}));
}

TEST_F(PackLibraryTest, LeavesTheImportAloneThatIsStillRunning)
{
    host.files().makeDirectory(kPacks / "Alps");
    {
        PackStaging staging(host.files(), host.fileStore(), kPacks, "Cream");
        ASSERT_TRUE(staging.open());
        host.files().write(staging.newPack() / "a.wav", "a");
        EXPECT_THAT(namesAfterRefresh(), ElementsAre("Alps"));
        EXPECT_TRUE(host.files().exists(staging.newPack()));
    }
    EXPECT_THAT(host.files().list(kPacks).value(), ElementsAre("Alps"));
}

} // namespace
} // namespace tocca::audio

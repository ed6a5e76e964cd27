#include "Instruments/ControllersOnMemory.h"
#include "UI/Popover/FileUrl.h"
#include "UI/Popover/Packs/CommunityPage.h"
#include "UI/Popover/Packs/PackImport.h"
#include "UI/Popover/Packs/SoundPackRows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tocca::ui {
namespace {

using testing::ElementsAre;
using testing::Optional;

TEST(CommunityPage, ShowsFourPacksAndStaysWithinItsPages)
{
    struct Row {
        const char* name;
        CommunityPage page;
        std::string position;
        std::size_t first;
        std::size_t end;
        bool canTurnBack;
        bool canTurnForward;
    };

    for (const Row& row : {
             Row{"no packs", {.count = 0, .stored = 1}, "1/1", 0, 0, false, false},
             Row{"a full page", {.count = 4, .stored = 1}, "1/1", 0, 4, false, false},
             Row{"one more", {.count = 5, .stored = 1}, "1/2", 0, 4, false, true},
             Row{"first of nine", {.count = 9, .stored = 1}, "1/3", 0, 4, false, true},
             Row{"middle of nine", {.count = 9, .stored = 2}, "2/3", 4, 8, true, true},
             Row{"last of nine", {.count = 9, .stored = 3}, "3/3", 8, 9, true, false},
             Row{"packs have gone", {.count = 2, .stored = 3}, "1/1", 0, 2, true, false},
             Row{"all packs have gone", {.count = 0, .stored = 3}, "1/1", 0, 0, true, false},
         }) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.page.position(), row.position);
        EXPECT_EQ(row.page.first(), row.first);
        EXPECT_EQ(row.page.end(), row.end);
        EXPECT_EQ(row.page.canTurnBack(), row.canTurnBack);
        EXPECT_EQ(row.page.canTurnForward(), row.canTurnForward);
    }
}

TEST(CommunityPage, TurnsNoFurtherThanItsEnds)
{
    CommunityPage page{.count = 9};
    page.turnBack();
    EXPECT_EQ(page.stored, 1);
    for (int i = 0; i < 5; ++i) {
        page.turnForward();
    }
    EXPECT_EQ(page.stored, 3);

    page.count = 2;
    EXPECT_EQ(page.page(), 1);
    page.turnBack();
    EXPECT_EQ(page.stored, 2) << "what is stored is not rewritten by what is shown";
    EXPECT_EQ(page.title(), "COMMUNITY LIBRARY (2 SWITCHES)");
}

TEST(FileUrl, NamesAPathOfThisComputerOrNone)
{
    struct Row {
        const char* url;
        std::optional<std::filesystem::path> path;
        bool isFile = true;
    };

    for (const Row& row : {
             Row{"file:///home/ann/Alps", "/home/ann/Alps"},
             Row{"FILE:///home/ann/Alps", "/home/ann/Alps"},
             Row{"file:/home/ann", "/home/ann"},
             Row{"file://localhost/home/ann", "/home/ann"},
             Row{"file:///a%20b%2Fc%C3%A4", "/a b/c\xC3\xA4"},
             Row{"file:///a?query#part", "/a"},
             Row{"file://server/share", std::nullopt},
             Row{"file://server", std::nullopt},
             Row{"file:relative", std::nullopt},
             Row{"file:///a%2", std::nullopt},
             Row{"file:///a%zz", std::nullopt},
             Row{"file:///a%+1", std::nullopt},
             Row{"file:///a%00b", std::nullopt},
             Row{"file:", std::nullopt},
             Row{"https://example.org/a", std::nullopt, false},
             Row{"", std::nullopt, false},
         }) {
        SCOPED_TRACE(row.url);
        EXPECT_EQ(isFileUrl(row.url), row.isFile);
        EXPECT_EQ(pathOfFileUrl(row.url), row.path);
    }
}

struct PackImportTest : testing::Test {
    PackImportTest()
    {
        machine.host.files().write("/downloads/Alps/new.wav", "new");
        machine.host.files().write("/downloads/Topre/new.wav", "new");
    }

    [[nodiscard]] std::vector<std::string> packs() const
    {
        std::vector<std::string> names;
        for (const auto& pack : machine.loader.availableCustomPacks.get()) {
            names.push_back(pack.name);
        }
        return names;
    }

    ControllersOnMemory machine;
    PackImport packImport{machine.host, machine.loader};
    const std::optional<std::string>& message = packImport.importMessage.get();
};

TEST_F(PackImportTest, ByTheOpenPanelTellsHowItWent)
{
    packImport.openSoundPackImporter();
    EXPECT_THAT(machine.host.openPanels().prompts, ElementsAre("Import Soundpack"));
    machine.host.openPanels().answer(std::nullopt);
    EXPECT_EQ(message, std::nullopt);

    packImport.openSoundPackImporter();
    machine.host.openPanels().answer("/downloads/Alps");
    machine.host.settle();
    EXPECT_THAT(message, Optional(std::string("Imported 'Alps'!")));
    EXPECT_THAT(packs(), ElementsAre("Alps"));

    packImport.openSoundPackImporter();
    machine.host.openPanels().answer("/nowhere");
    EXPECT_THAT(message, Optional(testing::StartsWith("Failed to import: ")));
}

TEST_F(PackImportTest, ByADropTakesTheFirstFileAtOnceAndImportsItLater)
{
    EXPECT_FALSE(packImport.handleDrop({}));
    EXPECT_FALSE(packImport.handleDrop({"https://example.org/Alps"}));

    EXPECT_TRUE(packImport.handleDrop({"file:///downloads/Alps", "file:///downloads/Topre"}));
    EXPECT_EQ(message, std::nullopt) << "the import waits for the main queue";
    machine.host.settle();
    EXPECT_THAT(message, Optional(std::string("Imported 'Alps'!")));
    EXPECT_THAT(packs(), ElementsAre("Alps"));

    EXPECT_TRUE(packImport.handleDrop({"file:///downloads/Alps"}));
    machine.host.settle();
    EXPECT_THAT(packs(), ElementsAre("Alps")) << "replaced";

    EXPECT_TRUE(packImport.handleDrop({"file://server/Alps"}));
    machine.host.settle();
    EXPECT_THAT(message, Optional(std::string("Imported 'Alps'!"))) << "ignored silently";

    EXPECT_TRUE(packImport.handleDrop({"file:///nowhere"}));
    machine.host.settle();
    EXPECT_THAT(message, Optional(testing::StartsWith("Import failed: ")));
}

TEST_F(PackImportTest, ShowsNamesThatWouldDeceive)
{
    machine.host.files().write("/downloads/Al\nps\xE2\x80\xAE/new.wav", "new");
    EXPECT_TRUE(packImport.handleDrop({"file:///downloads/Al%0Aps%E2%80%AE"}));
    machine.host.settle();
    EXPECT_THAT(message, Optional(std::string("Imported 'Al ps\xEF\xBF\xBD'!")));
}

TEST_F(PackImportTest, LeavesAnAnswerThatComesTooLate)
{
    {
        PackImport closed(machine.host, machine.loader);
        closed.openSoundPackImporter();
        EXPECT_TRUE(closed.handleDrop({"file:///downloads/Topre"}));
    }
    machine.host.openPanels().answer("/downloads/Alps");
    machine.host.settle();
    EXPECT_THAT(packs(), ElementsAre());
}

TEST(SoundPackRows, ChooseOneSoundAmongBuiltInAndImported)
{
    ControllersOnMemory machine;
    std::vector<audio::SoundPackInfo> packs(2);
    packs[0].id = packs[0].name = "A";
    packs[1].id = packs[1].name = "B";
    const auto selected = [&] {
        std::string names;
        auto rows = soundPackRows::builtIn(machine.engine);
        for (auto& row : soundPackRows::community(machine.engine, packs, {.count = packs.size()})) {
            rows.push_back(std::move(row));
        }
        for (const auto& row : rows) {
            names += row.isSelected ? row.title : "";
        }
        return names;
    };
    const auto sounds = [&] {
        machine.host.advance(0.1);
        return machine.host.audioPlayers().sounds().size();
    };
    EXPECT_EQ(selected(), "Holy Panda");

    soundPackRows::choose(machine.engine, packs[1]);
    EXPECT_EQ(selected(), "B");
    EXPECT_EQ(machine.engine.currentSwitchType.get(), audio::SwitchType::holyPanda);

    const std::size_t before = sounds();
    soundPackRows::choose(machine.engine, audio::SwitchType::holyPanda);
    EXPECT_EQ(selected(), "Holy Panda");
    EXPECT_EQ(sounds(), before + 1) << "a preview";
}

} // namespace
} // namespace tocca::ui

#include "Instruments/ControllersOnMemory.h"
#include "UI/Popover/Packs/PackImport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tocca::ui {
namespace {

using testing::ElementsAre;
using testing::Optional;

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
    machine.host.settle();
    EXPECT_THAT(message, Optional(testing::StartsWith("Failed to import: ")));
}

TEST_F(PackImportTest, ByADropImportsTheFirstFolderLater)
{
    EXPECT_FALSE(packImport.handleDrop({}));
    EXPECT_TRUE(packImport.handleDrop({"/downloads/Alps", "/downloads/Topre"}));
    EXPECT_EQ(message, std::nullopt) << "the import waits for the main queue";
    machine.host.settle();
    EXPECT_THAT(message, Optional(std::string("Imported 'Alps'!")));

    EXPECT_TRUE(packImport.handleDrop({"/downloads/Alps"}));
    machine.host.settle();
    EXPECT_THAT(packs(), ElementsAre("Alps")) << "replaced";

    EXPECT_TRUE(packImport.handleDrop({"/nowhere"}));
    machine.host.settle();
    EXPECT_THAT(message, Optional(testing::StartsWith("Import failed: ")));

    const std::string deceiving = "/downloads/Al\nps\xE2\x80\xAE";
    machine.host.files().write(deceiving + "/new.wav", "new");
    EXPECT_TRUE(packImport.handleDrop({deceiving}));
    machine.host.settle();
    EXPECT_THAT(message, Optional(std::string("Imported 'Al ps\xEF\xBF\xBD'!")));
}

TEST_F(PackImportTest, LeavesAnAnswerThatComesTooLate)
{
    {
        PackImport closed(machine.host, machine.loader);
        closed.openSoundPackImporter();
        EXPECT_TRUE(closed.handleDrop({"/downloads/Topre"}));
    }
    machine.host.openPanels().answer("/downloads/Alps");
    machine.host.settle();
    EXPECT_THAT(packs(), ElementsAre());
}

TEST_F(PackImportTest, ShowsWhatItIsDoingAndImportsOneAfterTheOther)
{
    std::vector<std::string> seen;
    std::vector<int> percents;
    const auto activity =
        packImport.importActivity.onChange([&](const auto& now) { seen.push_back(now.value_or("-")); });
    const auto percent = packImport.importPercent.onChange([&](int now) { percents.push_back(now); });
    packImport.handleDrop({"/downloads/Alps"});
    packImport.handleDrop({"/downloads/Topre/"});
    machine.host.settle();
    EXPECT_THAT(seen, ElementsAre("Importing “Alps”…", "-", "Importing “Topre”…", "-"));
    EXPECT_THAT(percents, testing::Contains(100));
    EXPECT_THAT(packs(), ElementsAre("Alps", "Topre"));
}

TEST_F(PackImportTest, CanBeGivenUp)
{
    packImport.openSoundPackImporter();
    machine.host.openPanels().answer("/downloads/Alps");
    EXPECT_NE(packImport.importActivity.get(), std::nullopt);
    packImport.cancel();
    machine.host.settle();
    EXPECT_THAT(message, Optional(std::string("Failed to import: cancelled")));
    EXPECT_EQ(packImport.importActivity.get(), std::nullopt);
    EXPECT_THAT(packs(), ElementsAre());
    EXPECT_THAT(machine.host.files().list(machine.loader.customPacksDirectory()).value(), ElementsAre());
}

TEST_F(PackImportTest, ConvertsAndKeepsWhatItReplaces)
{
    // In the format of the decoder in memory, where each byte is a sample.
    machine.host.files().write("/downloads/foreign/Alps/press/1.wav", std::string(50, '\x40'));
    packImport.handleDrop({"/downloads/Alps"});
    machine.host.settle();
    packImport.handleDrop({"/downloads/foreign/Alps"});
    machine.host.settle();
    EXPECT_THAT(message, Optional(std::string("Imported 'Alps'!")));
    const auto pack = machine.loader.customPacksDirectory() / "Alps";
    EXPECT_THAT(machine.host.files().list(pack).value(),
                testing::IsSupersetOf({"press_standard_01.wav", "release_standard_none.wav", "original"}));
    EXPECT_TRUE(machine.host.files().exists("/trash/1 Alps/new.wav"));
}

} // namespace
} // namespace tocca::ui

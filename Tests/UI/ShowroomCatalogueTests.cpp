#include "Instruments/ControllersOnMemory.h"
#include "UI/Studio/Showroom/ShowroomCatalogue.h"
#include "UI/Studio/Showroom/SwitchTraits.h"
#include "UI/SwitchSelection.h"

#include <gmock/gmock.h>

namespace tocca::ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

audio::SoundPackInfo packNamed(const std::string& name, const std::string& description = "")
{
    return {.id = "custom_" + name, .name = name, .description = description, .folderURL = "/packs/" + name};
}

std::vector<audio::SoundPackInfo> packs(int count)
{
    std::vector<audio::SoundPackInfo> result;
    for (int i = 1; i <= count; ++i) {
        result.push_back(packNamed("Pack " + std::to_string(i)));
    }
    return result;
}

std::vector<std::string> titles(std::span<const ShowroomItem* const> items)
{
    std::vector<std::string> result;
    for (const ShowroomItem* item : items) {
        result.push_back(item->title);
    }
    return result;
}

std::string textOf(const SharedBytes& data)
{
    std::string text;
    for (const std::byte byte : *data) {
        text += static_cast<char>(byte);
    }
    return text;
}

TEST(SwitchTraits, FollowFromTheFirstSignInTheName)
{
    struct Row {
        std::string_view name;
        std::string_view tag;
        std::string_view weight;
        std::string_view profile;
    };

    constexpr auto kRows = std::to_array<Row>({
        {.name = "Holy Panda", .tag = "Tactile", .weight = "67g", .profile = "Halo Stem"},
        {.name = "Gateron RED", .tag = "Linear", .weight = "45g", .profile = "Cherry MX"},
        {.name = "Topre 45", .tag = "Tactile", .weight = "45cN", .profile = "Electro-Capacitive"},
        {.name = "Blue Panda", .tag = "Clicky", .weight = "67g", .profile = "Halo Stem"},
        {.name = "Model M", .tag = "Clicky", .weight = "70g", .profile = "Buckling Spring"},
        {.name = "Buckling Red", .tag = "Clicky", .weight = "45g", .profile = "Cherry MX"},
        {.name = "Bubble Wrap", .tag = "Novelty", .weight = "60g", .profile = "Cherry MX"},
    });
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(getTag(row.name), row.tag);
        EXPECT_EQ(getWeight(row.name), row.weight);
        EXPECT_EQ(getProfile(row.name), row.profile);
    }
}

TEST(ShowroomCatalogue, TakesWhatPassesSearchAndFilter)
{
    struct Row {
        std::string search;
        std::string filter;
        std::vector<std::string> titles;
    };

    const auto rows = std::to_array<Row>({
        {.search = "",
         .filter = "All",
         .titles = {"Holy Panda", "Cherry MX Blue", "Cherry MX Brown", "NK Cream", "Typewriter", "Ärmel Red",
                    "Buckling"}},
        {.search = "", .filter = "Clicky", .titles = {"Cherry MX Blue", "Buckling"}},
        {.search = "", .filter = "Tactile", .titles = {"Holy Panda", "Cherry MX Brown"}},
        {.search = "", .filter = "Novelty", .titles = {}},
        {.search = "thock", .filter = "All", .titles = {"Holy Panda"}},
        {.search = "ÄRM", .filter = "Linear", .titles = {"Ärmel Red"}},
        {.search = "A\u0308rm", .filter = "All", .titles = {"Ärmel Red"}},
        {.search = "ÄRM", .filter = "Vintage", .titles = {}},
        {.search = "ΣΥΛΛΟΓΉ", .filter = "All", .titles = {"Buckling"}},
        {.search = "arme", .filter = "All", .titles = {"Ärmel Red"}},
        {.search = "A\u0308RM", .filter = "All", .titles = {"Ärmel Red"}},
        {.search = " ", .filter = "Vintage", .titles = {"Typewriter"}},
    });
    ShowroomCatalogue catalogue;
    catalogue.setCustomPacks({packNamed("Ärmel Red"), packNamed("Buckling", "από συλλογή")});
    for (const Row& row : rows) {
        SCOPED_TRACE(row.search + " in " + row.filter);
        catalogue.setSearchText(row.search);
        catalogue.setSelectedFilter(row.filter);
        EXPECT_EQ(titles(catalogue.allShowroomItems()), row.titles);
    }
}

TEST(Pages, ShowOnePartAndTurnNoFurtherThanTheirEnds)
{
    struct Row {
        const char* name;
        Pages pages;
        std::size_t shown;
        std::size_t total;
        std::size_t first;
        std::size_t end;
        bool canTurnBack;
        bool canTurnForward;
    };

    for (const Row& row : {
             Row{"nothing", {.size = 4, .count = 0, .stored = 1}, 1, 1, 0, 0, false, false},
             Row{"a full page", {.size = 4, .count = 4, .stored = 1}, 1, 1, 0, 4, false, false},
             Row{"first of two", {.size = 4, .count = 5, .stored = 1}, 1, 2, 0, 4, false, true},
             Row{"middle of three", {.size = 4, .count = 9, .stored = 2}, 2, 3, 4, 8, true, true},
             Row{"last of three", {.size = 6, .count = 13, .stored = 3}, 3, 3, 12, 13, true, false},
             Row{"items have gone", {.size = 4, .count = 2, .stored = 3}, 1, 1, 0, 2, true, false},
             Row{"all have gone", {.size = 4, .count = 0, .stored = 3}, 1, 1, 0, 0, true, false},
         }) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.pages.shown(), row.shown);
        EXPECT_EQ(row.pages.total(), row.total);
        EXPECT_EQ(row.pages.first(), row.first);
        EXPECT_EQ(row.pages.end(), row.end);
        EXPECT_EQ(row.pages.canTurnBack(), row.canTurnBack);
        EXPECT_EQ(row.pages.canTurnForward(), row.canTurnForward);
        Pages turned = row.pages;
        turned.turnBack();
        EXPECT_EQ(turned.stored, row.pages.stored - (row.canTurnBack ? 1 : 0));
        turned = row.pages;
        turned.turnForward();
        EXPECT_EQ(turned.stored, row.pages.stored + (row.canTurnForward ? 1 : 0));
    }
}

TEST(ShowroomCatalogue, KeepsThePageWhileSearchingAndLeavesItForAFilter)
{
    ShowroomCatalogue catalogue;
    catalogue.setCustomPacks(packs(8));
    EXPECT_EQ(catalogue.summary(), "SHOWING 1–6 OF 13 SWITCHES (6 PER PAGE)");
    catalogue.showNextPage();
    catalogue.showNextPage();
    EXPECT_EQ(catalogue.summary(), "SHOWING 13–13 OF 13 SWITCHES (6 PER PAGE)");

    catalogue.setSearchText("pack 1"); // one match, two pages before
    EXPECT_THAT(titles(catalogue.paginatedShowroomItems()), ElementsAre("Pack 1"));
    EXPECT_EQ(catalogue.pages().stored, 3U);
    EXPECT_EQ(catalogue.summary(), "SHOWING 1–1 OF 1 SWITCHES (6 PER PAGE)");
    catalogue.showPreviousPage();
    EXPECT_EQ(catalogue.pages().stored, 2U);

    catalogue.setSearchText("none of them");
    EXPECT_THAT(catalogue.paginatedShowroomItems(), IsEmpty());
    EXPECT_EQ(catalogue.summary(), "SHOWING 0–0 OF 0 SWITCHES (6 PER PAGE)");

    catalogue.setSearchText("");
    EXPECT_EQ(catalogue.pages().stored, 2U);
    catalogue.setSelectedFilter("All");
    EXPECT_EQ(catalogue.pages().stored, 1U);
}

TEST(SwitchSelection, IsOneSoundAmongBuiltInAndImportedAndIsHeard)
{
    ControllersOnMemory machine;
    machine.host.files().write("/packs/Alps/press.wav", "alps");
    const audio::SoundPackInfo alps = packNamed("Alps");
    const auto selected = [&] {
        std::string names = switchSelection::isSelected(machine.engine, alps) ? "Alps " : "";
        for (const audio::SwitchType type : audio::SwitchType::allCases) {
            names +=
                switchSelection::isSelected(machine.engine, type) ? std::string(type.rawValue()) + " " : "";
        }
        return names + "/ " + switchSelection::activeSwitchName(machine.engine);
    };
    const auto heard = [&] {
        machine.host.settle();
        return textOf(machine.host.audioPlayers().last().data);
    };
    EXPECT_EQ(selected(), "Holy Panda / Holy Panda");

    switchSelection::select(machine.engine, alps);
    EXPECT_EQ(selected(), "Alps / Alps");
    EXPECT_EQ(machine.engine.currentSwitchType.get(), audio::SwitchType::holyPanda);
    EXPECT_EQ(heard(), "alps");

    switchSelection::select(machine.engine, audio::SwitchType::nkCream);
    EXPECT_EQ(selected(), "NK Cream / NK Cream");
    switchSelection::select(machine.engine, audio::SwitchType::holyPanda);
    EXPECT_EQ(selected(), "Holy Panda / Holy Panda");
    EXPECT_EQ(heard(), "press");
}

} // namespace
} // namespace tocca::ui

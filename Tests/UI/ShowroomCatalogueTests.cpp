#include "Instruments/ControllersOnMemory.h"
#include "UI/Studio/Showroom/ShowroomCatalogue.h"
#include "UI/Studio/Showroom/SwitchSelection.h"
#include "UI/Studio/Showroom/SwitchTraits.h"

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
        {.name = "Cherry MX Blue", .tag = "Clicky", .weight = "50g", .profile = "Cherry MX"},
        {.name = "Cherry MX Brown", .tag = "Tactile", .weight = "60g", .profile = "Cherry MX"},
        {.name = "NK Cream", .tag = "Linear", .weight = "55g", .profile = "POM Stem"},
        {.name = "Typewriter", .tag = "Vintage", .weight = "60g", .profile = "Cherry MX"},
        {.name = "Gateron RED", .tag = "Linear", .weight = "45g", .profile = "Cherry MX"},
        {.name = "Topre 45", .tag = "Tactile", .weight = "45cN", .profile = "Electro-Capacitive"},
        {.name = "Blue Panda", .tag = "Clicky", .weight = "67g", .profile = "Halo Stem"},
        {.name = "Kailh Box White", .tag = "Clicky", .weight = "50g", .profile = "Clickbar"},
        {.name = "Model M", .tag = "Clicky", .weight = "70g", .profile = "Buckling Spring"},
        {.name = "Buckling Red", .tag = "Clicky", .weight = "45g", .profile = "Cherry MX"},
        {.name = "Oreo", .tag = "Tactile", .weight = "60g", .profile = "Cherry MX"},
        {.name = "Ink Black", .tag = "Linear", .weight = "55g", .profile = "Cherry MX"},
        {.name = "Tealios Apex", .tag = "Linear", .weight = "60g", .profile = "Cherry MX"},
        {.name = "Purple Cream", .tag = "Tactile", .weight = "55g", .profile = "POM Stem"},
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

TEST(ShowroomCatalogue, ShowsOnePageAndSaysWhichPart)
{
    struct Row {
        int packCount;
        int steps; // presses of NEXT
        std::size_t shown;
        int page;
        int pages;
        bool canGoOn;
        std::string_view summary;
    };

    constexpr auto kRows = std::to_array<Row>({
        {0, 0, 5, 1, 1, false, "SHOWING 1–5 OF 5 SWITCHES (6 PER PAGE)"},
        {1, 3, 6, 1, 1, false, "SHOWING 1–6 OF 6 SWITCHES (6 PER PAGE)"},
        {2, 0, 6, 1, 2, true, "SHOWING 1–6 OF 7 SWITCHES (6 PER PAGE)"},
        {8, 1, 6, 2, 3, true, "SHOWING 7–12 OF 13 SWITCHES (6 PER PAGE)"},
        {8, 2, 1, 3, 3, false, "SHOWING 13–13 OF 13 SWITCHES (6 PER PAGE)"},
        {8, 9, 1, 3, 3, false, "SHOWING 13–13 OF 13 SWITCHES (6 PER PAGE)"},
    });
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.summary);
        ShowroomCatalogue catalogue;
        catalogue.setCustomPacks(packs(row.packCount));
        for (int i = 0; i < row.steps; ++i) {
            catalogue.showNextPage();
        }
        EXPECT_EQ(catalogue.paginatedShowroomItems().size(), row.shown);
        EXPECT_EQ(catalogue.currentPage(), row.page);
        EXPECT_EQ(catalogue.pageCount(), row.pages);
        EXPECT_EQ(catalogue.canShowPreviousPage(), row.page > 1);
        EXPECT_EQ(catalogue.canShowNextPage(), row.canGoOn);
        EXPECT_EQ(catalogue.summary(), row.summary);
    }
}

TEST(ShowroomCatalogue, KeepsThePageWhileSearchingAndLeavesItForAFilter)
{
    ShowroomCatalogue catalogue;
    catalogue.setCustomPacks(packs(8));
    catalogue.showNextPage();
    catalogue.showNextPage();

    catalogue.setSearchText("pack 1"); // one match, two pages before
    EXPECT_THAT(titles(catalogue.paginatedShowroomItems()), ElementsAre("Pack 1"));
    EXPECT_EQ(catalogue.showroomPage(), 3);
    EXPECT_EQ(catalogue.summary(), "SHOWING 1–1 OF 1 SWITCHES (6 PER PAGE)");
    EXPECT_TRUE(catalogue.canShowPreviousPage());
    EXPECT_FALSE(catalogue.canShowNextPage());
    catalogue.showPreviousPage();
    EXPECT_EQ(catalogue.showroomPage(), 2);

    catalogue.setSearchText("none of them");
    EXPECT_THAT(catalogue.paginatedShowroomItems(), IsEmpty());
    EXPECT_EQ(catalogue.summary(), "SHOWING 0–0 OF 0 SWITCHES (6 PER PAGE)");

    catalogue.setSearchText("");
    EXPECT_EQ(catalogue.showroomPage(), 2);
    catalogue.setSelectedFilter("All");
    EXPECT_EQ(catalogue.showroomPage(), 1);
}

TEST(SwitchSelection, MarksWhatPlaysAndLetsItBeHeard)
{
    ControllersOnMemory controllers;
    controllers.host.files().write("/packs/Alps/press.wav", "alps");
    const ShowroomItem pack = ShowroomItem::of(packNamed("Alps"));
    const ShowroomItem panda = ShowroomItem::of(audio::SwitchType::holyPanda);
    const ShowroomItem cream = ShowroomItem::of(audio::SwitchType::nkCream);
    const auto selected = [&] {
        std::string names;
        for (const ShowroomItem* item : {&panda, &cream, &pack}) {
            names += switchSelection::isSelected(*item, controllers.engine) ? item->title + " " : "";
        }
        return names + "/ " + switchSelection::activeSwitchName(controllers.engine);
    };
    const auto heard = [&] {
        controllers.host.settle();
        return textOf(controllers.host.audioPlayers().last().data);
    };
    EXPECT_EQ(selected(), "Holy Panda / Holy Panda");

    switchSelection::select(pack, controllers.engine);
    EXPECT_EQ(selected(), "Alps / Alps");
    EXPECT_EQ(heard(), "alps");

    switchSelection::select(cream, controllers.engine);
    EXPECT_EQ(selected(), "NK Cream / NK Cream");

    switchSelection::select(panda, controllers.engine);
    EXPECT_EQ(selected(), "Holy Panda / Holy Panda");
    EXPECT_EQ(heard(), "press");
}

} // namespace
} // namespace tocca::ui

#include "Model/Packs.h"
#include "Model/Selection.h"
#include "Output/SelectStrokes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <set>

namespace tocca::soundpack {
namespace {

TEST(Packs, DriveOnlyBanksTheyHave)
{
    for (const Pack& pack : packs()) {
        std::set<BankId> present;
        std::ranges::transform(pack.banks, std::inserter(present, present.end()), &Bank::id);
        EXPECT_EQ(present.size(), pack.banks.size()) << pack.folder << " has a bank twice";
        for (const Slot& slot : kSlots) {
            SCOPED_TRACE(pack.folder + '/' + fileStem(slot));
            const TunedStroke tuned = strokeOf(pack, slot);
            EXPECT_FALSE(tuned.stroke.impacts.empty());
            for (const Impact& impact : tuned.stroke.impacts) {
                for (const Drive& drive : impact.drives) {
                    EXPECT_TRUE(present.contains(drive.bank)) << streamName(drive.bank);
                }
            }
            for (const auto& [bank, tuning] : tuned.tuning) {
                EXPECT_TRUE(present.contains(bank)) << streamName(bank);
            }
        }
    }
}

TEST(Packs, HaveAllTheirVariantsSelectedOnce)
{
    EXPECT_EQ(selections().size(), packs().size() * kSlots.size());
    for (const Pack& pack : packs()) {
        for (const Slot& slot : kSlots) {
            SCOPED_TRACE(pack.folder + '/' + fileStem(slot));
            const auto& indices = selectionOf(pack.folder, slot).indices;
            EXPECT_EQ(indices.size(), variantCount(slot));
            EXPECT_EQ(std::set(indices.begin(), indices.end()).size(), indices.size());
        }
    }
}

// A parameter that was changed without printing the table anew shows here; one slot of each pack, for time's sake.
TEST(Packs, KeepASelectionMadeFromTheirPresentParameters)
{
    const std::array<Slot, 5> slots{{{Key::Standard, Action::Press},
                                     {Key::Space, Action::Release},
                                     {Key::Back, Action::Release},
                                     {Key::Standard, Action::Release},
                                     {Key::Back, Action::Press}}};
    for (std::size_t i = 0; i < packs().size(); ++i) {
        const Slot& slot = slots.at(i % slots.size());
        SCOPED_TRACE(packs()[i].folder + '/' + fileStem(slot));
        const Choice choice = selectStrokes(packs()[i], slot);
        const Selection& kept = selectionOf(packs()[i].folder, slot);
        EXPECT_EQ(choice.indices, kept.indices);
        EXPECT_NEAR(choice.gainDb, kept.gainDb, 0.011);
    }
}

} // namespace
} // namespace tocca::soundpack

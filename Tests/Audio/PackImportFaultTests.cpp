#include "Audio/ImportMachine.h"
#include "Audio/Packs/PackImporter.h"
#include "Audio/Packs/PackStaging.h"
#include "Platform/FaultyFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace tocca::audio {
namespace {

using platform::FailAfter;
using ThenWorks = FailAfter::ThenWorks;

struct Row {
    const char* name;
    ThenWorks then;
    bool canExchange;
    bool hasOldPack = true;
    bool newPackIsRemovedByHand = false; ///< before anybody has cleared up
    bool hasTrash = true;
};

/// Imports with the Nth step failing and looks at the disk when it works again; returns whether any step has failed.
bool importWithFault(const Row& row, int step)
{
    ImportMachine machine;
    auto& disk = machine.host;
    if (!row.hasOldPack) {
        static_cast<void>(disk.fileStore().removeTree(kPacks / "Alps"));
    }
    disk.fileStore().hasTrash = row.hasTrash;
    FailAfter fault(step, row.then);
    platform::FaultyFiles files(disk.files(), std::ref(fault));
    platform::FaultyFileStore store(disk.files(), disk.fileStore(), std::ref(fault));
    store.canExchange = row.canExchange;

    const bool isImported = PackImporter(files, store).import("/downloads/Alps", kPacks).hasValue();
    const bool isRemoved = isImported && row.newPackIsRemovedByHand;
    if (isRemoved) {
        static_cast<void>(disk.fileStore().removeTree(kPacks / "Alps"));
    }
    const auto ids = machine.listedIds();
    const auto found = machine.contents(kPacks / "Alps");
    if (isRemoved) {
        EXPECT_THAT(found, testing::AnyOf(FolderContents{}, kOldPack));
    } else if (isImported) {
        EXPECT_EQ(found, kNewPack);
    } else {
        EXPECT_EQ(found, row.hasOldPack ? kOldPack : FolderContents{});
    }
    EXPECT_EQ(ids, found.empty() ? std::vector<std::string>{} : std::vector<std::string>{"custom_Alps"});
    const auto trash = machine.contents(platform::memory::MemoryFileStore::kTrash);
    FolderContents kept = machine.contents(kPacks);
    kept.insert(trash.begin(), trash.end());
    const bool isOldKept =
        std::any_of(kept.begin(), kept.end(), [](const auto& entry) { return entry.second == "old deep"; });
    EXPECT_EQ(isOldKept, row.hasOldPack) << "what was replaced must be there to be taken back";
    PackStaging::forgetReplaced(disk.files(), disk.fileStore(), kPacks);
    EXPECT_EQ(disk.files().list(kPacks).value().size(), ids.size()) << "something was left behind";
    EXPECT_TRUE(isImported || fault.hasFailed());
    return fault.hasFailed();
}

TEST(PackImportUnderFaults, LeavesTheOldPackOrTheNewOneWholeWhicheverStepFails)
{
    constexpr Row kRows[] = {
        {"exchange, one fault", ThenWorks::Everything, true},
        {"exchange, crash", ThenWorks::Nothing, true},
        {.name = "no trash", .then = ThenWorks::Everything, .canExchange = true, .hasTrash = false},
        {.name = "no trash, two steps, crash",
         .then = ThenWorks::Nothing,
         .canExchange = false,
         .hasTrash = false},
        {"exchange, crash, removal", ThenWorks::Nothing, true, true, true},
        {"two steps, one fault", ThenWorks::Everything, false},
        {"two steps, crash", ThenWorks::Nothing, false},
        {"two steps, one fault, removal", ThenWorks::Everything, false, true, true},
        {"two steps, crash, removal", ThenWorks::Nothing, false, true, true},
        {"first import, one fault", ThenWorks::Everything, true, false},
        {"first import, crash", ThenWorks::Nothing, true, false},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        int step = 1;
        while (importWithFault(row, step)) {
            SCOPED_TRACE("step " + std::to_string(step));
            ASSERT_FALSE(HasFailure());
            ++step;
        }
        EXPECT_GT(step, 20) << "an import has more steps than were tried";
    }
}

TEST(PackImportUnderFaults, PutsTheOldPackBackWhicheverStepOfThatFails)
{
    for (const auto then : {ThenWorks::Everything, ThenWorks::Nothing}) {
        bool hasFailed = true;
        for (int step = 1; hasFailed; ++step) {
            SCOPED_TRACE("step " + std::to_string(step));
            ImportMachine machine;
            auto& disk = machine.host;
            const auto abandoned = kPacks / ".tocca-import-1";
            ASSERT_TRUE(disk.fileStore().makeDirectories(abandoned / "old"));
            ASSERT_TRUE(disk.fileStore().move(kPacks / "Alps", abandoned / "old/Alps"));

            FailAfter fault(step, then);
            const platform::FaultyFiles files(disk.files(), std::ref(fault));
            platform::FaultyFileStore store(disk.files(), disk.fileStore(), std::ref(fault));
            static_cast<void>(PackLibrary(files, store).packs(kPacks));
            hasFailed = fault.hasFailed();

            EXPECT_EQ(machine.listedIds(), std::vector<std::string>{"custom_Alps"});
            EXPECT_EQ(machine.contents(kPacks / "Alps"), kOldPack);
            PackStaging::forgetReplaced(disk.files(), disk.fileStore(), kPacks);
            EXPECT_EQ(disk.files().list(kPacks).value().size(), 1U) << "something was left behind";
        }
    }
}

} // namespace
} // namespace tocca::audio

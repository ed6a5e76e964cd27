#include "Conversion/ConversionMachine.h"

#include "Audio/Packs/PackImporter.h"
#include "Platform/FaultyFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tocca::audio {
namespace {

using testing::HasSubstr;

TEST(PackIntake, PassesOnWhatItDoesNotKnowOrNeedNotChange)
{
    struct Row {
        const char* name;
        std::vector<std::string> files;
        FolderContents expected;
    };

    const Row kRows[] = {
        {"a plain pack",
         {"Board/press_standard.wav", "Board/sub/x.txt", "Board/.DS_Store", "Board/._press.wav"},
         {{"press_standard.wav", "x"}, {"sub", "(folder)"}, {"sub/x.txt", "x"}}},
        {"files with words in their names",
         {"Board/enter.ogg", "Board/delete.mp3"},
         {{"enter.ogg", "x"}, {"delete.mp3", "x"}}},
        {"a plain pack beside foreign things",
         {"Board/press_a.wav", "Board/config.json", "Board/press/1.wav"},
         {{"press_a.wav", "x"}, {"config.json", "x"}, {"press", "(folder)"}, {"press/1.wav", "x"}}},
        {"a plain pack one folder too deep",
         {"Board/Inner/press_standard.wav", "Board/README"},
         {{"press_standard.wav", "x"}}},
        {"no sounds", {"Board/README"}, {{"README", "x"}}},
        {"sounds where nobody looks",
         {"Board/a/b/c/d/e/f/x.wav"},
         {{"a", "(folder)"},
          {"a/b", "(folder)"},
          {"a/b/c", "(folder)"},
          {"a/b/c/d", "(folder)"},
          {"a/b/c/d/e", "(folder)"},
          {"a/b/c/d/e/f", "(folder)"},
          {"a/b/c/d/e/f/x.wav", "x"}}},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        ConversionMachine machine;
        for (const std::string& file : row.files) {
            machine.write(file, "x");
        }
        ASSERT_TRUE(machine.prepare("Board")) << machine.error();
        EXPECT_EQ(machine.contents(), row.expected);
    }
}

TEST(PackIntake, AsksForOneOfSeveralPacks)
{
    ConversionMachine machine;
    machine.write("Boards/Alps/press.wav", "x");
    machine.write("Boards/Topre/press.wav", "x");
    machine.writeTone("Boards/more/Foreign/press/1.wav", 400);
    machine.prepare("Boards");
    EXPECT_EQ(machine.error(), "“Boards” holds 3 sound packs; import one of them");
}

TEST(PackIntake, TakesFilesAsTheyAreAndTheOnlyArchiveInAFolder)
{
    ConversionMachine machine;
    machine.write("Board.wav", "a recording");
    ASSERT_TRUE(machine.prepare("Board.wav")) << machine.error();
    EXPECT_EQ(machine.host.fileStore().status(machine.prepared.value().path).value().kind,
              platform::FileKind::File);

    machine.write("Folder/Board.ZIP", "PK");
    machine.write("Folder/README", "x");
    machine.host.archives().entries = {{{.path = "press.wav"}, "x"}};
    ASSERT_TRUE(machine.prepare("Folder")) << machine.error();
    EXPECT_EQ(machine.contents(), (FolderContents{{"press.wav", "x"}}));
    EXPECT_EQ(machine.prepared.value().path.filename(), "Folder");
}

TEST(PackIntake, TellsHowFarItIsAndStopsWhenAsked)
{
    for (const bool isForeign : {true, false}) {
        for (int stopAt = 0;; ++stopAt) {
            ConversionMachine machine;
            for (int i = 0; i < 5; ++i) {
                machine.writeTone((isForeign ? "Board/press/" : "Board/press_") + std::to_string(i) + ".wav",
                                  400 + 50 * i);
            }
            double last = 0.0;
            int asked = 0;
            const ImportWatch watch{.isCancelled = [&] { return asked++ >= stopAt; },
                                    .progress =
                                        [&](double share) {
                                            EXPECT_GE(share, last);
                                            EXPECT_LE(share, 1.0);
                                            last = share;
                                        }};
            machine.prepare("Board", watch);
            if (machine.prepared) {
                EXPECT_GT(stopAt, 5);
                EXPECT_DOUBLE_EQ(last, 1.0);
                break;
            }
            ASSERT_EQ(machine.error(), "cancelled");
            ASSERT_THAT(machine.host.files().list(machine.packs).value(), testing::IsEmpty());
        }
    }
}

TEST(PackIntake, LeavesTheImportAsManyStepsHoweverLargeThePackIs)
{
    std::vector<int> steps;
    for (const int fileCount : {3, 300}) {
        ConversionMachine machine;
        machine.host.files().write(machine.packs / "Board/press.wav", "installed");
        for (int i = 0; i < fileCount; ++i) {
            machine.write("Board/press_" + std::to_string(i) + ".wav", "x");
        }
        ASSERT_TRUE(machine.prepare("Board"));
        int count = 0;
        const auto counted = [&] {
            ++count;
            return false;
        };
        const platform::FaultyFiles files(machine.host.files(), counted);
        platform::FaultyFileStore store(machine.host.files(), machine.host.fileStore(), counted);
        ASSERT_TRUE(PackImporter(files, store).import(machine.prepared.value().path, machine.packs));
        steps.push_back(count);
    }
    EXPECT_EQ(steps[0], steps[1]);
}

TEST(PackIntake, LeavesTheInstalledPacksAloneWhicheverStepFails)
{
    for (const bool isArchive : {false, true}) {
        bool hasFailed = true;
        int step = 1;
        for (; hasFailed; ++step) {
            SCOPED_TRACE("step " + std::to_string(step));
            ConversionMachine machine;
            machine.host.files().write(machine.packs / "Board/press.wav", "installed");
            machine.writeTone("Board/press/1.wav", 400);
            machine.write("Board.zip", "PK");
            machine.host.archives().entries = {{{.path = "press/1.wav"}, fileOf(tone(400))}};

            platform::FailAfter fault(step, platform::FailAfter::ThenWorks::Everything);
            const platform::FaultyFiles files(machine.host.files(), std::ref(fault));
            platform::FaultyFileStore store(machine.host.files(), machine.host.fileStore(), std::ref(fault));
            {
                PackIntake intake(files, store, machine.host.archives(), machine.decoder);
                auto prepared = intake.prepare(isArchive ? "/downloads/Board.zip" : "/downloads/Board",
                                               machine.packs, {});
                if (prepared) {
                    PackImporter importer(files, store);
                    static_cast<void>(importer.import(prepared.value().path, machine.packs));
                }
            }
            hasFailed = fault.hasFailed();
            // What replaced packs are kept in is the trash or, if that has failed, hidden.
            static_cast<void>(
                PackLibrary(machine.host.files(), machine.host.fileStore()).packs(machine.packs));
            FolderContents all = contentsOf(machine.host.files(), machine.host.fileStore(), machine.packs);
            const auto trash = contentsOf(machine.host.files(), machine.host.fileStore(), "/trash");
            all.insert(trash.begin(), trash.end());
            const bool isKept = std::any_of(all.begin(), all.end(),
                                            [](const auto& entry) { return entry.second == "installed"; });
            EXPECT_TRUE(isKept);
            EXPECT_TRUE(all.contains("Board/press.wav") || all.contains("Board/press_standard_01.wav"));
        }
        EXPECT_GT(step, 30);
    }
}

} // namespace
} // namespace tocca::audio

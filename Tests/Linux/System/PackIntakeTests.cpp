#include "Audio/Conversion/PackIntake.h"
#include "Audio/PackFolder.h"
#include "Audio/Packs/PackImporter.h"
#include "Audio/Packs/PackLibrary.h"
#include "Audio/Packs/PackStaging.h"
#include "Instruments/EncodedSound.h"
#include "Instruments/TemporaryDirectory.h"
#include "Instruments/ZipFile.h"
#include "Linux/System/ChildProcess.h"
#include "Platform/Linux/System/Files/LinuxFileStore.h"
#include "Platform/Linux/System/Files/LinuxFiles.h"
#include "Platform/Linux/System/Files/ZipArchives.h"
#include "Player/Decoding/FileSoundDecoder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <thread>

namespace tocca::audio {
namespace {

namespace fs = std::filesystem;
using instruments::TemporaryDirectory;
using platform::linux::ChildProcess;

/// A folder of packs with one called "Alps", and others of that name to be imported.
struct IntakeOnDisk : testing::Test {
    IntakeOnDisk()
    {
        fs::create_directories(downloads / "Alps/press");
        for (int i = 0; i < 3; ++i) {
            const auto wav = instruments::encoded(instruments::Encoding::Wav16,
                                                  instruments::sine(300.0 + 50 * i, 44100, 1000, 0.3));
            TemporaryDirectory::write(downloads / "Alps/press" / (std::to_string(i) + ".wav"), textOf(wav));
            entries.push_back({.path = "press/" + std::to_string(i) + ".wav", .bytes = textOf(wav)});
        }
        TemporaryDirectory::write(downloads / "Alps.zip", instruments::zipFile(entries));
        fillOldPack();
    }

    static std::string textOf(const instruments::Bytes& bytes)
    {
        return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    }

    void fillOldPack() const
    {
        fs::create_directories(packs / "Alps");
        TemporaryDirectory::write(packs / "Alps/old.wav", "old");
    }

    std::string import(const std::string& name)
    {
        PackIntake intake(files, store, archives, decoder);
        const auto prepared = intake.prepare(downloads / name, packs, {});
        if (!prepared) {
            return prepared.error().describe();
        }
        const auto imported = PackImporter(files, store).import(prepared.value().path, packs);
        return imported ? "imported " + imported.value() : imported.error().describe();
    }

    /// Whether the old pack is somewhere where a person finds it.
    [[nodiscard]] bool hasOldPack() const
    {
        const auto contents = contentsOf(files, store, root);
        return std::any_of(contents.begin(), contents.end(),
                           [](const auto& entry) { return entry.second == "old"; });
    }

    TemporaryDirectory directory;
    const fs::path root = directory.path();
    const fs::path packs = root / "packs";
    const fs::path downloads = root / "downloads";
    std::vector<instruments::ZipEntry> entries;
    platform::linux::LinuxFiles files;
    platform::linux::LinuxFileStore store{platform::linux::HomeTrash(root / "trash")};
    platform::linux::ZipArchives archives;
    player::FileSoundDecoder decoder;
};

TEST_F(IntakeOnDisk, LosesNothingWhenItIsKilledAtAnyMoment)
{
    constexpr int kAttempts = 200;
    const auto start = std::chrono::steady_clock::now();
    ASSERT_EQ(import("Alps"), "imported Alps");
    const auto whole = std::chrono::steady_clock::now() - start;
    const auto expected = contentsOf(files, store, packs / "Alps");
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        SCOPED_TRACE(attempt);
        ASSERT_TRUE(store.removeTree(packs / "Alps"));
        ASSERT_TRUE(store.removeTree(root / "trash"));
        fillOldPack();
        ChildProcess child([&] { return import(attempt % 2 == 0 ? "Alps" : "Alps.zip"); });
        // Whatever moment this hits, what is expected holds.
        std::this_thread::sleep_for(whole * 3 / 2 * attempt / kAttempts);
        child.kill();
        const auto said = child.finish();
        ASSERT_TRUE(!said || *said == "imported Alps") << *said;

        EXPECT_THAT(idsOf(PackLibrary(files, store).packs(packs)), testing::ElementsAre("custom_Alps"));
        EXPECT_THAT(files.list(packs).value(), testing::ElementsAre("Alps")) << "something was left behind";
        const auto found = contentsOf(files, store, packs / "Alps");
        EXPECT_TRUE(found == expected || found == (FolderContents{{"old.wav", "old"}}));
        ASSERT_TRUE(hasOldPack());
    }
}

TEST_F(IntakeOnDisk, RefusesWhatIsTooMuchBeforeItCopiesAnything)
{
    fs::create_directories(downloads / "Sparse");
    for (int i = 0; i < 3; ++i) {
        const auto file = downloads / "Sparse" / (std::to_string(i) + ".wav");
        TemporaryDirectory::write(file, "");
        fs::resize_file(file, std::uintmax_t{200} << 20U);
    }
    TemporaryDirectory::write(downloads / "Sparse.wav", "");
    fs::resize_file(downloads / "Sparse.wav", std::uintmax_t{4} << 30U);
    fs::create_directories(downloads / "Many/sub");
    for (std::size_t i = 0; i < SourceTree::kMostEntries; ++i) {
        std::ofstream(downloads / "Many/sub" / std::to_string(i));
    }
    EXPECT_EQ(import("Sparse"), "“Sparse” is larger than 512 MB");
    EXPECT_EQ(import("Sparse.wav"), "“Sparse.wav” is larger than 512 MB");
    EXPECT_EQ(import("Many"), "“Many” holds more than 20,000 files");
    EXPECT_THAT(files.list(packs).value(), testing::ElementsAre("Alps"));
    EXPECT_TRUE(files.exists(packs / "Alps/old.wav"));
}

TEST_F(IntakeOnDisk, HidesWhatItReplacesWhereThereIsNoTrash)
{
    TemporaryDirectory::write(root / "trash", "a file");
    EXPECT_EQ(import("Alps.zip"), "imported Alps");
    EXPECT_TRUE(hasOldPack());
    EXPECT_THAT(idsOf(PackLibrary(files, store).packs(packs)), testing::ElementsAre("custom_Alps"));
    EXPECT_EQ(files.list(packs).value().size(), 2U);
    PackStaging::forgetReplaced(files, store, packs);
    EXPECT_THAT(files.list(packs).value(), testing::ElementsAre("Alps"));
}

TEST_F(IntakeOnDisk, RefusesArchivesThatAreBrokenOrDangerous)
{
    const auto zip = [&](const std::vector<instruments::ZipEntry>& contents) {
        TemporaryDirectory::write(downloads / "Alps.zip", instruments::zipFile(contents));
        return import("Alps.zip");
    };
    EXPECT_THAT(zip({{.path = "press.wav", .bytes = "x", .hasWrongChecksum = true}}),
                testing::HasSubstr("cannot be read"));
    EXPECT_THAT(zip({{.path = "../press.wav", .bytes = "x"}}), testing::HasSubstr("leads out of it"));
    EXPECT_THAT(zip({{.path = "press.wav", .bytes = "/etc/passwd", .isLink = true}}),
                testing::HasSubstr("neither a file nor a folder"));
    EXPECT_THAT(zip({{.path = "press.wav", .bytes = "x", .isEncrypted = true}}),
                testing::HasSubstr("encrypted"));
    const std::string whole = instruments::zipFile(entries);
    TemporaryDirectory::write(downloads / "Alps.zip", whole.substr(0, whole.size() / 2));
    EXPECT_THAT(import("Alps.zip"), testing::HasSubstr("“Alps.zip” cannot be read"));
    EXPECT_EQ(contentsOf(files, store, packs),
              (FolderContents{{"Alps", "(folder)"}, {"Alps/old.wav", "old"}}));
}

} // namespace
} // namespace tocca::audio

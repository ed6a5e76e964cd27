#include "Audio/Packs/SoundPackLoader.h"
#include "Platform/Memory/MemoryHost.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <set>
#include <string>

namespace tocca::audio {
namespace {

using platform::memory::MemoryHost;
using platform::memory::textOf;

struct SoundPackLoaderTest : testing::Test {
    MemoryHost host;
    SoundPackLoader loader{host};
    ThreadRoleScope role{ThreadRole::AudioQueue};

    std::string sampled(KeyCategory category, KeyStrokeAction action)
    {
        const SharedBytes bytes = loader.sample("/packs/p", "custom_p", category, action);
        return bytes ? textOf(*bytes) : "";
    }
};

TEST(SoundSlot, SortsFileNamesByTheirWords)
{
    struct Row {
        const char* name;
        std::optional<SoundSlot> slot;
    };

    constexpr auto kDown = KeyStrokeAction::down;
    constexpr auto kUp = KeyStrokeAction::up;
    constexpr Row kRows[] = {
        {"Press_Standard.wav", SoundSlot(kDown, SoundSlot::standard)},
        {"Press_Standard.WAV", std::nullopt},
        {"press_standard.flac", std::nullopt},
        {".wav", SoundSlot(kDown, SoundSlot::standard)},
        {"wav", std::nullopt},
        {"backspace.wav", SoundSlot(kDown, SoundSlot::space)},
        {"delete_release.mp3", SoundSlot(kUp, SoundSlot::back)},
        {"BACK.ogg", SoundSlot(kDown, SoundSlot::back)},
        {"enter.ogg", SoundSlot(kDown, SoundSlot::enter)},
        {"space-enter-release.mp3", SoundSlot(kUp, SoundSlot::space)},
        {"release.wav", SoundSlot(kUp, SoundSlot::standard)},
        {"tocca_meta.json", std::nullopt},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(SoundSlot::fromFileName(row.name), row.slot) << row.name;
    }
}

TEST_F(SoundPackLoaderTest, FallsBackAlongTheChainButNeverFromAPressToARelease)
{
    host.files().write("/packs/p/press_standard.wav", "ps");
    host.files().write("/packs/p/press_space.wav", "pp");
    host.files().write("/packs/p/release_standard.wav", "rs");
    host.files().write("/packs/p/release_enter.wav", "re");

    using enum KeyCategory::Value;
    EXPECT_EQ(sampled(standard, KeyStrokeAction::down), "ps");
    EXPECT_EQ(sampled(modifier, KeyStrokeAction::down), "ps");
    EXPECT_EQ(sampled(spacebar, KeyStrokeAction::down), "pp");
    EXPECT_EQ(sampled(enter, KeyStrokeAction::down), "ps");
    EXPECT_EQ(sampled(backspace, KeyStrokeAction::down), "ps");
    EXPECT_EQ(sampled(spacebar, KeyStrokeAction::up), "rs");
    EXPECT_EQ(sampled(enter, KeyStrokeAction::up), "re");
}

TEST_F(SoundPackLoaderTest, PlaysOneSidedPacksAsFarAsTheyGo)
{
    host.files().write("/packs/p/release.wav", "r");
    EXPECT_EQ(sampled(KeyCategory::standard, KeyStrokeAction::down), "");
    EXPECT_EQ(sampled(KeyCategory::spacebar, KeyStrokeAction::up), "r");

    host.files().write("/packs/q/press_standard.wav", "p");
    EXPECT_EQ(textOf(*loader.sample("/packs/q", "custom_q", KeyCategory::enter, KeyStrokeAction::up)), "p");
}

TEST_F(SoundPackLoaderTest, DrawsEveryVariant)
{
    for (const char* name : {"a.wav", "b.wav", "c.mp3"}) {
        host.files().write(std::filesystem::path("/packs/p") / name, name);
    }
    std::set<std::string> drawn;
    for (int i = 0; i < 100; ++i) {
        drawn.insert(sampled(KeyCategory::standard, KeyStrokeAction::down));
    }
    EXPECT_EQ(drawn, (std::set<std::string>{"a.wav", "b.wav", "c.mp3"}));
}

TEST_F(SoundPackLoaderTest, KeepsWhatItHasListedAndRetriesWhatItCouldNot)
{
    EXPECT_EQ(sampled(KeyCategory::standard, KeyStrokeAction::down), "");
    host.files().write("/packs/p/a.wav", "first");
    EXPECT_EQ(sampled(KeyCategory::standard, KeyStrokeAction::down), "first")
        << "a folder that came later is found";

    host.files().write("/packs/p/a.wav", "second");
    const int accesses = host.files().accessCount();
    EXPECT_EQ(sampled(KeyCategory::standard, KeyStrokeAction::down), "first");
    EXPECT_EQ(textOf(*loader.sample("/elsewhere", "custom_p", KeyCategory::enter, KeyStrokeAction::down)),
              "first")
        << "the first folder of an id stays its folder";
    EXPECT_EQ(host.files().accessCount(), accesses) << "a loaded pack touches no disk";

    host.files().makeDirectory("/packs/empty");
    loader.loadPack("custom_empty", "/packs/empty");
    host.files().write("/packs/empty/a.wav", "late");
    EXPECT_EQ(loader.sample("/packs/empty", "custom_empty", KeyCategory::standard, KeyStrokeAction::down),
              nullptr)
        << "an empty folder is remembered as such";
}

TEST_F(SoundPackLoaderTest, LeavesOutWhatItCannotRead)
{
    host.files().write("/packs/p/good.wav", "good");
    host.files().write("/packs/p/secret.wav", "secret");
    host.files().makeUnreadable("/packs/p/secret.wav");
    host.files().makeSpecial("/packs/p/fifo.wav");
    host.files().makeDirectory("/packs/p/folder.wav");
    host.files().write("/packs/p/huge.wav", std::string(SoundPackLoader::kLargestFile + 1, 'x'));

    const PackTable& table = loader.loadPack("custom_p", "/packs/p");
    EXPECT_EQ(table[SoundSlot(KeyStrokeAction::down, SoundSlot::standard).index()].size(), 1U);
    EXPECT_EQ(sampled(KeyCategory::standard, KeyStrokeAction::down), "good");
}

TEST_F(SoundPackLoaderTest, KeepsOnlySoMuchOfAPackButPlaysAllOfIt)
{
    constexpr std::size_t kFiles = 12;
    host.files().write("/packs/p/0.wav", std::string(SoundPackLoader::kLargestFile, 'x'));
    for (std::size_t i = 1; i < kFiles; ++i) {
        ASSERT_TRUE(host.fileStore().copyEntry("/packs/p/0.wav", "/packs/p/" + std::to_string(i) + ".wav"));
    }
    const auto& variants = loader.loadPack(
        "custom_p", "/packs/p")[SoundSlot(KeyStrokeAction::down, SoundSlot::standard).index()];
    ASSERT_EQ(variants.size(), kFiles);
    std::set<std::size_t> seen;
    for (int draw = 0; draw < 200; ++draw) {
        ASSERT_NE(loader.sample("/packs/p", "custom_p", KeyCategory::standard, KeyStrokeAction::down),
                  nullptr);
        std::size_t inMemory = 0;
        for (std::size_t i = 0; i < kFiles; ++i) {
            if (variants[i]) {
                seen.insert(i);
                ++inMemory;
            }
        }
        ASSERT_EQ(inMemory * SoundPackLoader::kLargestFile, SoundPackLoader::kMostBytes);
    }
    EXPECT_EQ(seen.size(), kFiles);
}

TEST_F(SoundPackLoaderTest, LooksForTheBuiltInPacksInAFixedOrderOnEveryCall)
{
    const std::filesystem::path places[] = {
        "/home/user/.local/share/Tocca/SoundPacks",
        "/home/user/project/Resources/SoundPacks",
        "/home/user/project/Sources/Tocca/Resources/SoundPacks",
        "/app/resources/Resources/SoundPacks",
        "/app/resources/SoundPacks",
    };
    EXPECT_EQ(loader.builtInSoundPacksDirectory(), std::nullopt);
    EXPECT_EQ(loader.sample(SwitchType::nkCream, KeyCategory::standard, KeyStrokeAction::down), nullptr);
    for (const auto& place : places) {
        host.files().write(place / "mx-blue/press.wav", place.string());
        EXPECT_EQ(loader.builtInSoundPacksDirectory(), place);
    }
    const auto bytes = loader.sample(SwitchType::cherryMXBlue, KeyCategory::standard, KeyStrokeAction::down);
    ASSERT_NE(bytes, nullptr);
    EXPECT_EQ(textOf(*bytes), "/app/resources/SoundPacks");

    host.directories().resourcesPath.reset();
    host.directories().supportPath.reset();
    EXPECT_EQ(loader.builtInSoundPacksDirectory(), places[2]);
}

} // namespace
} // namespace tocca::audio

#include "Audio/AudioEngine.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "Platform/KeyCodes.h"
#include "Platform/Memory/MemoryHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

namespace tocca::audio {
namespace {

using platform::memory::MemoryHost;
using platform::memory::MemorySound;
using platform::memory::textOf;

using platform::key::kA;
using platform::key::kL;
using platform::key::kSpace;

// The top draw gives the upper end of the random rate, the bottom draw the lower one.
constexpr std::uint64_t kTopDraw = ~std::uint64_t{0};
constexpr std::uint64_t kFirstVariant = 0;

struct AudioEngineTest : testing::Test {
    AudioEngineTest()
    {
        for (const SwitchType type : SwitchType::allCases) {
            const auto folder = std::filesystem::path("/app/resources/SoundPacks") / type.folderName();
            host.files().write(folder / "press.wav", std::string(type.folderName()) + " press");
            host.files().write(folder / "press_space.wav", std::string(type.folderName()) + " space");
            host.files().write(folder / "release.wav", std::string(type.folderName()) + " release");
        }
        host.settle();
    }

    void press(std::uint16_t code) { stroke(code, KeyStrokeAction::down); }

    void stroke(std::uint16_t code, KeyStrokeAction action)
    {
        {
            const ThreadRoleScope role(ThreadRole::Capture);
            engine.playKey(code, action);
        }
        host.settle();
    }

    const std::vector<std::shared_ptr<MemorySound>>& sounds() { return host.audioPlayers().sounds(); }

    const MemorySound& last() { return host.audioPlayers().last(); }

    MemoryHost host;
    bool isMuted = false;
    SoundPackLoader loader{host};
    AudioEngine engine{host, loader, [this] { return isMuted; }};
};

TEST_F(AudioEngineTest, PlaysAPressWithTheDefaultsOfAFreshLaunch)
{
    host.advance(1);
    host.random().script({kFirstVariant, kTopDraw});
    press(kA);

    ASSERT_EQ(sounds().size(), 1U);
    EXPECT_EQ(textOf(*last().data), "holy-panda press");
    EXPECT_FLOAT_EQ(last().rate, 1.02F * 0.98F);
    EXPECT_FLOAT_EQ(last().volume, 1.0F);
    EXPECT_FLOAT_EQ(last().pan, -0.55F);
    EXPECT_EQ(host.haptics().pulseCount, 1);
    EXPECT_EQ(engine.keyVisualizerTrigger.get(), 1);
    EXPECT_FLOAT_EQ(engine.lastActiveKeyPan.get(), -0.55F);

    press(kSpace);
    EXPECT_EQ(textOf(*last().data), "holy-panda space");
    stroke(kA, KeyStrokeAction::up);
    EXPECT_EQ(sounds().size(), 2U) << "releases are silent by default";
}

TEST_F(AudioEngineTest, LoadsTheSelectedPackBeforeTheFirstStroke)
{
    const int accesses = host.files().accessCount();
    EXPECT_GT(accesses, 0);
    press(kA);
    EXPECT_EQ(host.files().accessCount(), accesses);
    ASSERT_EQ(host.serialQueues().made().size(), 1U);
    EXPECT_EQ(host.serialQueues().made()[0].label, "com.tocca.audioengine");
    EXPECT_TRUE(host.serialQueues().made()[0].isUserInteractive);
}

TEST_F(AudioEngineTest, IsSilentAndStillWhileOffMutedOrForAnUnwantedRelease)
{
    const auto expectSilence = [this](KeyStrokeAction action) {
        stroke(kA, action);
        EXPECT_EQ(sounds().size(), 0U);
        EXPECT_EQ(host.haptics().pulseCount, 0);
        EXPECT_EQ(engine.keyVisualizerTrigger.get(), 0);
    };
    engine.isEnabled.set(false);
    expectSilence(KeyStrokeAction::down);
    engine.isEnabled.set(true);
    isMuted = true;
    expectSilence(KeyStrokeAction::down);
    isMuted = false;
    expectSilence(KeyStrokeAction::up);
}

TEST_F(AudioEngineTest, PlaysReleasesOnlyAsSoundWithoutPulseOrTrigger)
{
    engine.playUpstroke.set(true);
    stroke(kL, KeyStrokeAction::up);
    EXPECT_EQ(textOf(*last().data), "holy-panda release");
    EXPECT_FLOAT_EQ(last().pan, 0.55F);
    EXPECT_EQ(host.haptics().pulseCount, 0);
    EXPECT_EQ(engine.keyVisualizerTrigger.get(), 0);
}

TEST_F(AudioEngineTest, RaisesStrokesOfABurstInsideItsOpenBounds)
{
    struct Row {
        double interval;
        bool isBurst;
    };

    constexpr Row kRows[] = {
        {.interval = 0.1, .isBurst = true},     {.interval = 0.1099, .isBurst = true},
        {.interval = 0.1101, .isBurst = false}, {.interval = 0.0049, .isBurst = false},
        {.interval = 0.0051, .isBurst = true},
    };
    engine.volume.set(0.5F);
    engine.deskSurface.set(AcousticDeskSurface::cleanStudio);
    engine.isPresenceEQEnabled.set(false);
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.interval);
        host.advance(1);
        press(kA);
        host.advance(row.interval);
        host.random().script({kFirstVariant, kTopDraw});
        press(kA);
        EXPECT_FLOAT_EQ(last().volume, row.isBurst ? 0.55F : 0.5F);
        EXPECT_FLOAT_EQ(last().rate, row.isBurst ? 1.04F : 1.02F);
    }
}

TEST_F(AudioEngineTest, MeasuresTheBurstFromEveryStrokeThatPassedTheGates)
{
    engine.volume.set(0.5F);
    engine.isBurstDynamicsEnabled.set(false);
    host.advance(1);
    press(kA);
    const float plain = last().volume;

    engine.isBurstDynamicsEnabled.set(true);
    host.advance(0.05);
    press(kA);
    EXPECT_FLOAT_EQ(last().volume, plain * 1.1F) << "the clock ran on while dynamics were off";

    isMuted = true;
    host.advance(0.08);
    press(kA);
    isMuted = false;
    host.advance(0.08);
    press(kA);
    EXPECT_FLOAT_EQ(last().volume, plain) << "a muted stroke does not move the clock";
}

TEST_F(AudioEngineTest, ShapesLevelAndRateByTheSettings)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();

    struct Row {
        const char* name;
        float volume;
        bool hasPresence;
        AcousticDeskSurface desk;
        float lube;
        float expectedVolume;
        float expectedRate;
    };

    const Row rows[] = {
        {"plain", 0.5F, false, AcousticDeskSurface::cleanStudio, 0, 0.5F, 1.02F},
        {"presence", 0.5F, true, AcousticDeskSurface::cleanStudio, 0, 0.53F, 1.02F},
        {"hardwood", 0.5F, false, AcousticDeskSurface::hardwoodDesk, 0, 0.51F, 1.02F * 1.03F},
        {"gasket and lube", 0.5F, false, AcousticDeskSurface::gasketPoron, 1, 0.49F, 1.02F * 0.97F * 0.95F},
        {"too loud", 1.5F, true, AcousticDeskSurface::feltDeskmat, 0, 1.0F, 1.02F * 0.98F},
        {"negative", -0.2F, true, AcousticDeskSurface::cleanStudio, 0, 0.0F, 1.02F},
        {"not a number", nan, true, AcousticDeskSurface::cleanStudio, 0, 0.0F, 1.02F},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        engine.volume.set(row.volume);
        engine.isPresenceEQEnabled.set(row.hasPresence);
        engine.deskSurface.set(row.desk);
        engine.lubeLevel.set(row.lube);
        host.advance(1);
        host.random().script({kFirstVariant, kTopDraw});
        press(kA);
        EXPECT_FLOAT_EQ(last().volume, row.expectedVolume);
        EXPECT_FLOAT_EQ(last().rate, row.expectedRate);
    }
}

TEST_F(AudioEngineTest, KeepsOutputsStillWithoutHapticsAndCentredWithoutSpace)
{
    engine.isHapticsEnabled.set(false);
    press(kL);
    EXPECT_EQ(sounds().size(), 1U);
    EXPECT_EQ(engine.keyVisualizerTrigger.get(), 0);
    EXPECT_FLOAT_EQ(engine.lastActiveKeyPan.get(), 0.0F);

    engine.isHapticsEnabled.set(true);
    press(kL);
    EXPECT_FLOAT_EQ(engine.lastActiveKeyPan.get(), 0.55F);
    engine.isSpatialAudioEnabled.set(false);
    press(kL);
    EXPECT_FLOAT_EQ(last().pan, 0.0F);
    EXPECT_FLOAT_EQ(engine.lastActiveKeyPan.get(), 0.0F);
    EXPECT_EQ(engine.keyVisualizerTrigger.get(), 2);

    engine.keyVisualizerTrigger.set(std::numeric_limits<std::int64_t>::max());
    press(kL);
    EXPECT_EQ(engine.keyVisualizerTrigger.get(), std::numeric_limits<std::int64_t>::min());
}

TEST_F(AudioEngineTest, PrefersTheCustomPackAndGoesSilentWhenItsFolderIsMissing)
{
    const SoundPackInfo mine{
        .id = "custom_Mine", .name = "Mine", .description = "", .folderURL = "/packs/Mine"};
    engine.selectedCustomPack.set(mine);
    press(kA);
    EXPECT_EQ(sounds().size(), 0U);
    EXPECT_EQ(engine.keyVisualizerTrigger.get(), 1) << "the press is still felt and seen";
    EXPECT_TRUE(host.standardOutput().lines.empty());

    host.files().write("/packs/Mine/key.ogg", "mine");
    engine.currentSwitchType.set(SwitchType::typewriter);
    press(kA);
    EXPECT_EQ(textOf(*last().data), "mine");

    engine.selectedCustomPack.set(std::nullopt);
    press(kA);
    EXPECT_EQ(textOf(*last().data), "typewriter press");
}

TEST_F(AudioEngineTest, UsesTheSettingsOfTheMomentOfTheStroke)
{
    host.serialQueues().setStalled(true);
    press(kA);
    engine.currentSwitchType.set(SwitchType::nkCream);
    press(kA);
    host.serialQueues().setStalled(false);
    host.settle();
    ASSERT_EQ(sounds().size(), 2U);
    EXPECT_EQ(textOf(*sounds()[0]->data), "holy-panda press");
    EXPECT_EQ(textOf(*sounds()[1]->data), "nk-cream press");
}

TEST_F(AudioEngineTest, TellsOfABadFileOnceAndForgetsPacksThatAreNoLongerSelected)
{
    host.audioPlayers().setUndecodable("holy-panda press", "not audio");
    for (int i = 0; i < 3; ++i) {
        press(kA);
    }
    EXPECT_THAT(host.standardOutput().lines, testing::ElementsAre("Failed to play audio sample: not audio"));

    const auto readsOf = [this](SwitchType type) {
        engine.currentSwitchType.set(type);
        host.settle();
        const int before = host.files().accessCount();
        press(kSpace);
        return host.files().accessCount() - before;
    };
    EXPECT_EQ(readsOf(SwitchType::holyPanda), 0);
    EXPECT_GT(readsOf(SwitchType::nkCream), 0);
    EXPECT_EQ(readsOf(SwitchType::nkCream), 0);
    EXPECT_GT(readsOf(SwitchType::holyPanda), 0);
}

TEST_F(AudioEngineTest, ReplacesTheOldestOfThirtySixSlotsAndIgnoresFailures)
{
    for (int i = 0; i < 36; ++i) {
        press(kA);
    }
    EXPECT_TRUE(std::none_of(sounds().begin(), sounds().end(), [](const auto& s) { return s->isReleased; }));

    host.audioPlayers().setUndecodable("holy-panda space", "not audio");
    press(kSpace);
    EXPECT_THAT(host.standardOutput().lines, testing::ElementsAre("Failed to play audio sample: not audio"));
    EXPECT_FALSE(sounds()[0]->isReleased);

    engine.playMouseClick(MouseButton::left);
    host.settle();
    EXPECT_TRUE(sounds()[0]->isReleased) << "clicks share the slots";
    for (int i = 0; i < 36; ++i) {
        press(kA);
    }
    EXPECT_TRUE(sounds()[36]->isReleased);
    EXPECT_FALSE(sounds()[37]->isReleased);
}

TEST_F(AudioEngineTest, PassesTheEventsOwnTimeToThePlayer)
{
    const double happened = host.clock().now() - 0.003;
    {
        const ThreadRoleScope role(ThreadRole::Capture);
        engine.playKey(kA, KeyStrokeAction::down, happened);
    }
    host.settle();
    EXPECT_EQ(last().eventTime, happened);
    press(kA);
    EXPECT_EQ(last().eventTime, std::nullopt) << "a preview from the interface sounds as soon as it can";
}

TEST(AudioEngineLifetime, EndsWithWorkStillQueued)
{
    MemoryHost host;
    host.files().write("/app/resources/SoundPacks/holy-panda/press.wav", "press");
    SoundPackLoader loader(host);
    {
        AudioEngine engine(host, loader, [] { return false; });
        engine.playKey(kA, KeyStrokeAction::down);
    }
    host.advance(1);
    EXPECT_TRUE(host.audioPlayers().sounds().empty());
    EXPECT_EQ(host.haptics().pulseCount, 0);
}

} // namespace
} // namespace tocca::audio

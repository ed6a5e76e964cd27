#include "Audio/AudioEngine.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "Audio/PeripheralSynthesis.h"
#include "Platform/Memory/MemoryHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <string>
#include <vector>

namespace tocca::audio {
namespace {

using platform::memory::MemoryHost;

constexpr std::uint64_t kLastOfAll = ~std::uint64_t{0};

std::vector<int> samplesOf(const std::vector<std::byte>& wav)
{
    std::vector<int> samples;
    for (std::size_t at = 44; at + 1 < wav.size(); at += 2) {
        const auto word = static_cast<std::uint16_t>(std::to_integer<unsigned>(wav[at]) |
                                                     std::to_integer<unsigned>(wav[at + 1]) << 8U);
        samples.push_back(static_cast<std::int16_t>(word));
    }
    return samples;
}

TEST(PeripheralSynthesis, RendersTheClickToTheByte)
{
    const SharedBytes wav = synthesizeWav(0.015, 1800, 3200, 350, 0.8);
    ASSERT_EQ(wav->size(), 1366U);
    const std::string header = platform::memory::textOf(*wav).substr(0, 44);
    const std::string expected("RIFF\x4E\x05\x00\x00WAVEfmt \x10\x00\x00\x00\x01\x00\x01\x00\x44\xAC\x00\x00"
                               "\x88\x58\x01\x00\x02\x00\x10\x00"
                               "data\x2A\x05\x00\x00",
                               44);
    EXPECT_EQ(header, expected);

    const auto samples = samplesOf(*wav);
    ASSERT_EQ(samples.size(), 661U);
    EXPECT_EQ(std::vector(samples.begin(), samples.begin() + 8),
              (std::vector{0, 8338, 15387, 20227, 22329, 21623, 18494, 13682}));
    EXPECT_EQ(*std::max_element(samples.begin(), samples.end()), 22329);
    EXPECT_EQ(*std::min_element(samples.begin(), samples.end()), -14419);
    EXPECT_EQ(synthesizeWav(0, 1, 1, 1, 1)->size(), 44U);
}

struct PeripheralAudioTest : testing::Test {
    PeripheralAudioTest() { host.settle(); }

    std::size_t clickSize(MouseButton button)
    {
        engine.playMouseClick(button);
        host.settle();
        return host.audioPlayers().last().data->size();
    }

    std::size_t soundsAfterScroll(double delta)
    {
        engine.playScrollRatchet(delta);
        host.settle();
        return host.audioPlayers().sounds().size();
    }

    MemoryHost host;
    bool isMuted = false;
    SoundPackLoader loader{host};
    AudioEngine engine{host, loader, [this] { return isMuted; }};
};

TEST_F(PeripheralAudioTest, GivesEveryProfileItsTwoClicks)
{
    struct Row {
        MouseSwitchProfile profile;
        std::size_t left;
        std::size_t right;
    };

    for (const Row& row :
         {Row{MouseSwitchProfile::kailhGM8, 1366, 1278}, Row{MouseSwitchProfile::omron50M, 1102, 1014},
          Row{MouseSwitchProfile::silentOptical, 1630, 1630}}) {
        SCOPED_TRACE(row.profile.rawValue());
        engine.mouseProfile.set(row.profile);
        EXPECT_EQ(clickSize(MouseButton::left), row.left);
        EXPECT_EQ(clickSize(MouseButton::right), row.right);
        EXPECT_EQ(clickSize(MouseButton::other), row.left);
    }
    const auto& sounds = host.audioPlayers().sounds();
    EXPECT_NE(*sounds[6]->data, *sounds[7]->data) << "equal sizes, different sounds";
}

TEST_F(PeripheralAudioTest, PlaysClicksAtTheirLevelUnshapedByKeySettings)
{
    engine.lubeLevel.set(1.0F);
    host.random().script({kLastOfAll});
    clickSize(MouseButton::left);
    EXPECT_FLOAT_EQ(host.audioPlayers().last().volume, 0.85F);
    EXPECT_FLOAT_EQ(host.audioPlayers().last().rate, 1.04F);
    EXPECT_FLOAT_EQ(host.audioPlayers().last().pan, 0.0F);
    EXPECT_EQ(engine.keyVisualizerTrigger.get(), 0);

    engine.volume.set(1.5F);
    clickSize(MouseButton::left);
    EXPECT_FLOAT_EQ(host.audioPlayers().last().volume, 1.0F) << "limited after the level is applied";

    host.serialQueues().setStalled(true);
    engine.playMouseClick(MouseButton::left);
    engine.volume.set(0.0F);
    host.serialQueues().setStalled(false);
    host.settle();
    EXPECT_FLOAT_EQ(host.audioPlayers().last().volume, 0.0F) << "the level is read when the click is played";
}

TEST_F(PeripheralAudioTest, ScalesTheTickWithTheScrollSpeed)
{
    struct Row {
        double delta;
        float factor;
    };

    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const Row& row :
         {Row{0, 1.0F}, Row{1, 1.02F}, Row{-5, 1.1F}, Row{15, 1.3F}, Row{-900, 1.3F}, Row{nan, 0.85F}}) {
        SCOPED_TRACE(row.delta);
        host.advance(1);
        host.random().script({kLastOfAll});
        soundsAfterScroll(row.delta);
        EXPECT_FLOAT_EQ(host.audioPlayers().last().rate, row.factor * 1.04F);
        EXPECT_FLOAT_EQ(host.audioPlayers().last().volume, 0.45F);
        EXPECT_EQ(host.audioPlayers().last().data->size(), 572U);
    }
}

TEST_F(PeripheralAudioTest, DropsTicksThatFollowThePlayedOneTooSoon)
{
    EXPECT_EQ(soundsAfterScroll(1), 1U);
    host.advance(0.020);
    EXPECT_EQ(soundsAfterScroll(1), 1U);
    host.advance(0.020);
    EXPECT_EQ(soundsAfterScroll(1), 2U) << "measured from the last tick that was played";
}

TEST_F(PeripheralAudioTest, ObeysTheSwitchesAndTheMute)
{
    const auto count = [this] {
        host.advance(1);
        engine.playMouseClick(MouseButton::left);
        engine.playScrollRatchet(1);
        const auto before = host.audioPlayers().sounds().size();
        host.settle();
        return host.audioPlayers().sounds().size() - before;
    };
    EXPECT_EQ(count(), 2U);
    engine.isMouseAudioEnabled.set(false);
    EXPECT_EQ(count(), 1U) << "the wheel has a switch of its own";
    engine.isScrollRatchetEnabled.set(false);
    EXPECT_EQ(count(), 0U);
    engine.isMouseAudioEnabled.set(true);
    engine.isScrollRatchetEnabled.set(true);
    isMuted = true;
    EXPECT_EQ(count(), 0U);
    isMuted = false;
    engine.isEnabled.set(false);
    EXPECT_EQ(count(), 0U);
}

} // namespace
} // namespace tocca::audio

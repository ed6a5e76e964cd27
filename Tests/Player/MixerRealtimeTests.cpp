#include "Instruments/EncodedSound.h"
#include "Player/MixerStage.h"
#include "TestKit/RealtimeGuard.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <random>
#include <thread>

namespace tocca::player {
namespace {

using testkit::MixerStage;

/// A clip that counts itself while it lives.
std::shared_ptr<const PcmClip> counted(std::atomic<int>& living, std::size_t frames, bool isStereo)
{
    ++living;
    auto samples = instruments::click(frames);
    auto* const clip = isStereo ? new PcmClip(samples, std::vector<float>(frames, 0.1F), 48000.0)
                                : new PcmClip(std::move(samples), 48000.0);
    return {clip, [&living](const PcmClip* dead) {
                delete dead;
                --living;
            }};
}

TEST(MixerRealtime, RenderingNeverAllocatesFreesOrLocks)
{
    MixerStage stage;
    StrokeTrace trace(64);
    stage.mixer->setTrace(&trace);
    std::atomic<int> living = 0;
    std::vector<float> block(128);
    std::minstd_rand random(5);
    std::vector<VoiceTicket> tickets;
    std::uint64_t violations = 0;
    float peak = 0.0F;
    for (int cycle = 0; cycle < 2000; ++cycle) {
        // Quiet stretches let every voice end; busy ones steal, cut, limit and stop.
        const bool isBusy = cycle % 1000 < 600;
        const auto strokes = cycle % 500 == 100 ? 70UL : isBusy ? random() % 5 : 0UL;
        for (unsigned long i = 0; i < strokes; ++i) {
            const auto ticket = stage.start(
                counted(living, 1 + random() % 9000, random() % 2 == 0),
                {.rate = random() % 3 == 0 ? 1.0F : 0.8F + 0.001F * static_cast<float>(random() % 600),
                 .eventTime = stage.cycle.beginsAt - 0.102 + 0.001 * static_cast<double>(random() % 130)});
            if (ticket) {
                tickets.push_back(*ticket);
            }
        }
        if (!tickets.empty() && random() % 3 == 0) {
            stage.mixer->stop(tickets[random() % tickets.size()]);
        }
        {
            const ThreadRoleScope role(ThreadRole::Render);
            const testkit::RealtimeGuard guard;
            stage.mixer->render(block, stage.cycle);
            violations += guard.violations().total();
        }
        peak = std::max(peak, *std::max_element(block.begin(), block.end()));
        stage.cycle.beginsAt += 64.0 / 48000.0;
        stage.clock.set(stage.cycle.beginsAt);
        stage.mixer->reclaim();
    }
    EXPECT_EQ(violations, 0U);
    EXPECT_EQ(living, 0);
    EXPECT_GT(peak, 0.9F);
    EXPECT_LE(peak, Limiter::kCeiling);
}

TEST(MixerRealtime, StrokesMayStartAndStopWhileAnotherThreadRenders)
{
    constexpr int kStrokes = 4000;
    MixerStage stage;
    std::atomic<int> living = 0;
    std::atomic<bool> isPlaying = true;

    std::thread renderer([&] {
        std::vector<float> block(128);
        while (isPlaying.load()) {
            const ThreadRoleScope role(ThreadRole::Render);
            stage.mixer->render(block, stage.cycle);
            // What is heard must always be finite and within the ceiling.
            for (const float sample : block) {
                ASSERT_LE(std::abs(sample), Limiter::kCeiling);
            }
        }
    });
    std::thread audioQueue([&] {
        const ThreadRoleScope role(ThreadRole::AudioQueue);
        std::minstd_rand random(11);
        std::vector<std::optional<VoiceTicket>> pool(platform::kMaxVoices);
        for (int stroke = 0; stroke < kStrokes; ++stroke) {
            stage.mixer->reclaim();
            auto& place = pool[static_cast<std::size_t>(stroke) % pool.size()];
            if (place) {
                stage.mixer->stop(*place);
            }
            place = stage.mixer->start(counted(living, 1 + random() % 2000, stroke % 2 == 0),
                                       {.rate = 0.9F + 0.001F * static_cast<float>(random() % 200),
                                        .eventTime = stage.cycle.beginsAt});
        }
        for (const auto& ticket : pool) {
            if (ticket) {
                stage.mixer->stop(*ticket);
            }
        }
        while (living.load() > 0) {
            stage.mixer->reclaim();
            std::this_thread::yield();
        }
    });
    audioQueue.join();
    isPlaying = false;
    renderer.join();
    EXPECT_EQ(living, 0);
}

} // namespace
} // namespace tocca::player

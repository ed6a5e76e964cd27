#include "Audio/Packs/SoundPackLoader.h"
#include "Instruments/StrokePath.h"
#include "Platform/Linux/System/Files/LinuxDirectories.h"
#include "Platform/Linux/System/Files/LinuxFiles.h"
#include "Platform/Linux/System/Threads/Scheduling.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <thread>
#include <vector>

namespace tocca {
namespace {

using Time = std::chrono::steady_clock;

double microseconds(Time::duration duration)
{
    return std::chrono::duration<double, std::micro>(duration).count();
}

/// What a press and its release cost the capture thread, from the event's arrival to the last post: held keys, debounce, shaping, two
/// tasks for the main thread and one for the audio queue. The pause before it is long enough for both to have fallen
/// asleep, so waking them is part of it; with no pause they are awake.
void captureThread(benchmark::State& state)
{
    const std::chrono::microseconds pause(state.range(0));
    instruments::StrokePath path;
    std::vector<double> costs;
    std::atomic<bool> isOver{false};
    std::thread capture([&] {
        platform::linux::adoptThread("capture", ThreadRole::Capture, true, {});
        std::uint16_t key = 0;
        for (auto _ : state) {
            if (pause.count() > 0) {
                std::this_thread::sleep_for(pause);
            }
            const auto before = Time::now();
            path.strike(key);
            const auto after = Time::now();
            key = static_cast<std::uint16_t>((key + 1) % 4096);
            costs.push_back(microseconds(after - before));
            state.SetIterationTime(std::chrono::duration<double>(after - before).count());
        }
        isOver = true;
    });
    while (!isOver) {
        path.serveMain(10);
    }
    capture.join();
    std::sort(costs.begin(), costs.end());
    constexpr double kHigh = 0.99;
    state.counters["p50_us"] = costs.at(costs.size() / 2);
    state.counters["p99_us"] =
        costs.at(static_cast<std::size_t>(static_cast<double>(costs.size() - 1) * kHigh));
}

/// A machine in memory with the real packs on the real disk.
struct Packs {
    platform::memory::MemoryHost memory;
    platform::linux::LinuxFiles files;
    platform::Host host{.mainQueue = memory.mainQueue(),
                        .serialQueues = memory.serialQueues(),
                        .threads = memory.threads(),
                        .timers = memory.timers(),
                        .clock = memory.clock(),
                        .eventTaps = memory.eventTaps(),
                        .localMonitors = memory.localMonitors(),
                        .trustQuery = memory.trustQuery(),
                        .audioPlayers = memory.audioPlayers(),
                        .audioDevices = memory.audioDevices(),
                        .haptics = memory.haptics(),
                        .workspace = memory.workspace(),
                        .loginItem = memory.loginItem(),
                        .directories = memory.directories(),
                        .files = files,
                        .fileStore = memory.fileStore(),
                        .archives = memory.archives(),
                        .soundDecoder = memory.soundDecoder(),
                        .random = memory.random(),
                        .standardOutput = memory.standardOutput(),
                        .application = memory.application(),
                        .screens = memory.screens(),
                        .windows = memory.windows(),
                        .panels = memory.panels(),
                        .popovers = memory.popovers(),
                        .statusBar = memory.statusBar(),
                        .mainMenu = memory.mainMenu(),
                        .openPanels = memory.openPanels(),
                        .userDefaults = memory.userDefaults()};
    ThreadRoleScope role{ThreadRole::Main};

    Packs()
    {
        memory.directories().resourcesPath = std::filesystem::path(TOCCA_SOUND_PACKS_DIR).parent_path();
    }
};

/// Finding the recording for a stroke of a built-in pack that is loaded, the look for its folder included.
void sampleLookUp(benchmark::State& state)
{
    Packs packs;
    audio::SoundPackLoader loader(packs.host);
    const ThreadRoleScope role(ThreadRole::AudioQueue);
    for (auto _ : state) {
        benchmark::DoNotOptimize(loader.sample(audio::SwitchType::holyPanda, audio::KeyCategory::spacebar,
                                               audio::KeyStrokeAction::down));
    }
}

/// Reading a built-in pack of 40 recordings from disk (cached by the system).
void firstUseOfPack(benchmark::State& state)
{
    Packs packs;
    for (auto _ : state) {
        state.PauseTiming();
        auto loader = std::make_unique<audio::SoundPackLoader>(packs.host);
        const ThreadRoleScope role(ThreadRole::AudioQueue);
        state.ResumeTiming();
        benchmark::DoNotOptimize(loader->sample(audio::SwitchType::holyPanda, audio::KeyCategory::standard,
                                                audio::KeyStrokeAction::down));
        state.PauseTiming();
        loader.reset();
        state.ResumeTiming();
    }
}

BENCHMARK(captureThread)->ArgName("pause_us")->Arg(0)->Arg(2000)->UseManualTime()->Iterations(4000);
BENCHMARK(sampleLookUp);
BENCHMARK(firstUseOfPack)->Iterations(50)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace tocca

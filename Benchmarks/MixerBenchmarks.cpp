#include "Player/Mixing/Limiter.h"
#include "Player/Mixing/Mixer.h"
#include "Support/ThreadRole.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <memory>
#include <optional>
#include <vector>

// What the render thread costs at 48 kHz, for the block size that the output asks for.
namespace tocca::player {
namespace {

constexpr double kRate = 48000.0;
constexpr std::size_t kQuantum = 64;

class StillClock final : public platform::Clock {
public:
    [[nodiscard]] double now() const noexcept override { return 1000.0; }
};

std::vector<float> tone(double seconds, float level)
{
    std::vector<float> samples(static_cast<std::size_t>(seconds * kRate));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        samples[i] = level * static_cast<float>(std::sin(0.1 * static_cast<double>(i)));
    }
    return samples;
}

/// Renders `voices` long recordings; the reported time is for one frame of one voice.
void renderVoices(benchmark::State& state, std::size_t channels, float rate, int voices)
{
    const StillClock clock;
    auto mixer = std::make_unique<Mixer>(clock);
    const ThreadRoleScope role(ThreadRole::Render);
    std::vector<std::shared_ptr<const PcmClip>> clips;
    for (int voice = 0; voice < voices; ++voice) {
        auto samples = tone(0.3, 0.01F);
        clips.push_back(std::make_shared<const PcmClip>(
            channels == 2 ? PcmClip(samples, tone(0.3, 0.005F), kRate) : PcmClip(samples, kRate)));
    }
    std::array<float, 2 * kQuantum> block{};
    const RenderCycle cycle{.beginsAt = 1000.0, .sampleRate = kRate, .quantum = kQuantum};
    const auto blocksPerClip = static_cast<int>(0.3 * kRate / (rate * kQuantum)) - 1;
    int blocks = 0;
    for (auto _ : state) {
        if (blocks % blocksPerClip == 0) {
            state.PauseTiming();
            mixer = std::make_unique<Mixer>(clock);
            for (const auto& clip : clips) {
                benchmark::DoNotOptimize(mixer->start(clip, {.rate = rate, .eventTime = 999.999}));
            }
            mixer->render(block, cycle);
            state.ResumeTiming();
        }
        mixer->render(block, cycle);
        benchmark::DoNotOptimize(block.data());
        ++blocks;
    }
    using benchmark::Counter;
    const double frames = static_cast<double>(state.iterations()) * kQuantum;
    state.counters["perFrameAndVoice"] =
        Counter(frames * voices, Counter::kIsRate | Counter::kInvert); // seconds
    state.counters["ofPeriod"] = Counter(frames / kRate, Counter::kIsRate | Counter::kInvert);
}

BENCHMARK_CAPTURE(renderVoices, monoCopied, 1, 1.0F, 36);
BENCHMARK_CAPTURE(renderVoices, monoResampled, 1, 1.03F, 36);
BENCHMARK_CAPTURE(renderVoices, stereoCopied, 2, 1.0F, 36);
BENCHMARK_CAPTURE(renderVoices, stereoResampled, 2, 1.03F, 36);
BENCHMARK_CAPTURE(renderVoices, oneMonoResampled, 1, 1.03F, 1);

void renderSilence(benchmark::State& state)
{
    const StillClock clock;
    const auto mixer = std::make_unique<Mixer>(clock);
    const ThreadRoleScope role(ThreadRole::Render);
    std::array<float, 2 * kQuantum> block{};
    for (auto _ : state) {
        mixer->render(block, {.beginsAt = 1000.0, .sampleRate = kRate, .quantum = kQuantum});
        benchmark::DoNotOptimize(block.data());
    }
}

BENCHMARK(renderSilence);

/// The kernels alone, for comparing processors.
void readAtOtherSpeed(benchmark::State& state, SincKernel kernel, bool isStereo)
{
    const PcmClip clip(tone(0.3, 0.5F), tone(0.3, 0.4F), kRate);
    alignas(64) std::array<float, kQuantum> left{};
    alignas(64) std::array<float, kQuantum> right{};
    const auto step = static_cast<std::uint64_t>(1.03 * 4294967296.0);
    std::uint64_t position = 0;
    for (auto _ : state) {
        const SincRead read{.table = fullBandTable(), .position = position, .step = step, .count = kQuantum};
        if (isStereo) {
            kernel.stereo(read, clip.channel(0).data(), clip.channel(1).data(), left.data(), right.data());
        } else {
            kernel.mono(read, clip.channel(0).data(), left.data());
        }
        benchmark::DoNotOptimize(left.data());
        benchmark::DoNotOptimize(right.data());
        position = (position + step * kQuantum) % (std::uint64_t{14000} << 32U);
    }
    state.counters["perFrame"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * kQuantum,
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK_CAPTURE(readAtOtherSpeed, monoBaseline, baselineSincKernel(), false);
BENCHMARK_CAPTURE(readAtOtherSpeed, monoBest, bestSincKernel(), false);
BENCHMARK_CAPTURE(readAtOtherSpeed, stereoBaseline, baselineSincKernel(), true);
BENCHMARK_CAPTURE(readAtOtherSpeed, stereoBest, bestSincKernel(), true);

void limit(benchmark::State& state, float level)
{
    Limiter limiter;
    const auto samples = tone(0.1, level);
    std::array<float, 2 * kQuantum> block{};
    std::size_t at = 0;
    for (auto _ : state) {
        for (std::size_t i = 0; i < kQuantum; ++i) {
            block[2 * i] = samples[(at + i) % samples.size()];
            block[2 * i + 1] = block[2 * i];
        }
        at += kQuantum;
        limiter.process(block, kRate);
        benchmark::DoNotOptimize(block.data());
    }
    state.counters["perFrame"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * kQuantum,
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK_CAPTURE(limit, quiet, 0.3F);
BENCHMARK_CAPTURE(limit, justBelow, 0.9F);
BENCHMARK_CAPTURE(limit, over, 2.0F);

} // namespace
} // namespace tocca::player

#include "Instruments/EncodedSound.h"
#include "Player/Decoding/Decoder.h"
#include "Player/Decoding/Resampler.h"
#include "Player/MixerAudioPlayers.h"
#include "Support/ThreadRole.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <memory>

// What the audio queue pays per stroke, and once per recording.
namespace tocca::player {
namespace {

class StillClock final : public platform::Clock {
public:
    [[nodiscard]] double now() const noexcept override { return 1000.0; }
};

class SilentOutput final : public AudioOutput {
public:
    void start(RenderSource& /*source*/) override {}

    [[nodiscard]] double sampleRate() const noexcept override { return 48000.0; }

    void noteActivity() noexcept override {}
};

/// A recording of 0.3 s, as packs hold them.
SharedBytes recording(instruments::Encoding encoding, int sampleRate)
{
    const auto frames = static_cast<std::size_t>(sampleRate) * 3 / 10;
    return instruments::shared(instruments::encoded(encoding, instruments::click(frames), 1, sampleRate));
}

void decodeAndConvert(benchmark::State& state, instruments::Encoding encoding, int sampleRate)
{
    const auto bytes = recording(encoding, sampleRate);
    for (auto _ : state) {
        auto clip = decode(*bytes);
        benchmark::DoNotOptimize(resampled(std::move(clip.value()), 48000.0));
    }
}

BENCHMARK_CAPTURE(decodeAndConvert, wav48k, instruments::Encoding::Wav16, 48000);
BENCHMARK_CAPTURE(decodeAndConvert, wav44k, instruments::Encoding::Wav16, 44100);
BENCHMARK_CAPTURE(decodeAndConvert, ogg44k, instruments::Encoding::OggVorbis, 44100);
BENCHMARK_CAPTURE(decodeAndConvert, mp344k, instruments::Encoding::Mp3, 44100);

/// Starting and replacing a player, with the render thread's part of the hand-over.
void playStroke(benchmark::State& state)
{
    const StillClock clock;
    SilentOutput output;
    const auto mixer = std::make_unique<Mixer>(clock);
    MixerAudioPlayers players(output, *mixer);
    const auto bytes = recording(instruments::Encoding::Wav16, 48000);
    std::array<std::unique_ptr<platform::AudioPlayer>, platform::kMaxVoices> pool;
    std::array<float, 128> block{};
    std::size_t next = 0;
    const ThreadRoleScope role(ThreadRole::AudioQueue);
    for (auto _ : state) {
        auto player = players.play(bytes, {.rate = 1.02F, .volume = 0.5F, .pan = 0.2F, .eventTime = 999.99});
        pool[next % pool.size()] = std::move(player.value());
        if (++next % 100 == 0) {
            state.PauseTiming();
            const ThreadRoleScope render(ThreadRole::Render);
            for (int i = 0; i < 3; ++i) {
                mixer->render(block, {.beginsAt = 1000.0, .sampleRate = 48000.0, .quantum = 64});
            }
            state.ResumeTiming();
        }
    }
}

BENCHMARK(playStroke);

} // namespace
} // namespace tocca::player

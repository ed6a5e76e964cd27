#pragma once

#include "Player/Mixing/Mixer.h"
#include "Support/ThreadRole.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace tocca::testkit {

class ManualClock final : public platform::Clock {
public:
    [[nodiscard]] double now() const noexcept override { return now_; }

    void set(double now) noexcept { now_ = now; }

private:
    double now_ = 54321.987;
};

[[nodiscard]] inline std::shared_ptr<const player::PcmClip> clipOf(std::vector<float> mono,
                                                                   double rate = 48000.0)
{
    return std::make_shared<const player::PcmClip>(std::move(mono), rate);
}

/// A mixer whose blocks follow each other without a gap, played by one thread.
struct MixerStage {
    ManualClock clock;
    std::unique_ptr<player::Mixer> mixer = std::make_unique<player::Mixer>(clock);
    player::RenderCycle cycle{.beginsAt = clock.now(), .sampleRate = 48000.0, .quantum = 64};
    std::vector<float> left;  ///< everything rendered so far
    std::vector<float> right; ///< likewise

    std::optional<player::VoiceTicket> start(std::shared_ptr<const player::PcmClip> clip,
                                             const platform::Playback& playback)
    {
        const ThreadRoleScope role(ThreadRole::AudioQueue);
        return mixer->start(std::move(clip), playback);
    }

    /// Starts `clip` at the next block's first frame.
    std::optional<player::VoiceTicket> startNow(std::shared_ptr<const player::PcmClip> clip)
    {
        return start(std::move(clip), {.eventTime = timeOfFrame(0)});
    }

    /// When a stroke must happen to sound at `frame` of the next block.
    [[nodiscard]] double timeOfFrame(double frame) const
    {
        return cycle.beginsAt + (frame - cycle.quantum) / cycle.sampleRate;
    }

    void render(std::size_t frames)
    {
        std::vector<float> block(2 * frames, 99.0F);
        {
            const ThreadRoleScope role(ThreadRole::Render);
            mixer->render(block, cycle);
        }
        for (std::size_t i = 0; i < frames; ++i) {
            left.push_back(block[2 * i]);
            right.push_back(block[2 * i + 1]);
        }
        cycle.beginsAt += static_cast<double>(frames) / cycle.sampleRate;
        clock.set(cycle.beginsAt);
    }

    /// The frames of the left side that are not silent.
    [[nodiscard]] std::vector<std::size_t> soundingFrames() const
    {
        std::vector<std::size_t> frames;
        for (std::size_t i = 0; i < left.size(); ++i) {
            if (left[i] != 0.0F) {
                frames.push_back(i);
            }
        }
        return frames;
    }
};

} // namespace tocca::testkit

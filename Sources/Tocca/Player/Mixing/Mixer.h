#pragma once

#include "Platform/Clock.h"
#include "Player/Mixing/Limiter.h"
#include "Player/Mixing/SincKernel.h"
#include "Player/Mixing/StrokeTrace.h"
#include "Player/Mixing/VoiceExchange.h"
#include "Player/Mixing/VoiceList.h"
#include "Player/RenderSource.h"
#include "Support/Realtime.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace tocca::player {

/// Mixes the recordings that are asked for into the blocks that the sound server asks for.
///
/// A stroke is placed at its event time plus one quantum, to the frame, so that two of them sound exactly as far apart as
/// they were played. One whose place is past begins with the block; one that happened more than 100 ms before the block
/// stays silent. Up to `platform::kMaxVoices` sound at once; another one fades the oldest out over 2 ms. The sum is limited
/// at −0.5 dBFS.
/// Threads: `start`, `stop`, `reclaim`: audio queue. `render`: render. `setTrace`: any.
/// Real-time: `render` is wait-free and never frees memory; `reclaim` does that on the audio queue.
/// Lifetime: outlives the output that renders it and the players that use it.
class Mixer final : public RenderSource {
public:
    explicit Mixer(const platform::Clock& clock) noexcept;

    /// Asks for `clip` to be sounded. An event time that is not a number or more than 100 ms ahead counts as now.
    /// Errors: nothing when too many requests wait for the render thread; the stroke stays silent.
    [[nodiscard]] std::optional<VoiceTicket> start(std::shared_ptr<const PcmClip> clip,
                                                   platform::Playback playback);

    /// Fades a request out over 2 ms, or drops it when it has not begun; one that is over is left alone.
    void stop(VoiceTicket ticket) noexcept { exchange_.cancel(ticket); }

    /// Frees the memory of requests that are over.
    void reclaim() noexcept { exchange_.reclaim(); }

    void render(std::span<float> frames, const RenderCycle& cycle) noexcept REALTIME override;

    /// Records every stroke in `trace` from now on, or none when it is null. Lifetime: `trace` must outlive the mixer.
    void setTrace(StrokeTrace* trace) noexcept { trace_.store(trace, std::memory_order_release); }

private:
    void admitRequests(const RenderCycle& cycle) noexcept;
    void admit(std::uint16_t slot, const RenderCycle& cycle) noexcept;
    void makeRoom(double sampleRate) noexcept;
    [[nodiscard]] bool advance(ActiveVoice& active, std::span<float> frames,
                               const RenderCycle& cycle) noexcept;
    void begin(ActiveVoice& active, double offset, const RenderCycle& cycle) noexcept;

    const platform::Clock& clock_;
    const SincKernel kernel_;
    VoiceExchange exchange_;
    VoiceList voices_;                         // render
    Limiter limiter_;                          // render
    std::atomic<StrokeTrace*> trace_{nullptr}; // any -> render
    double renderedAt_ = 0.0;                  // render, set while there is a trace
};

} // namespace tocca::player

#pragma once

#include "Platform/Clock.h"
#include "Player/Mixing/Limiter.h"
#include "Player/Mixing/MixerStatistics.h"
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
/// stays silent. Up to 36 voices sound at once; another one fades the oldest out over 2 ms. The sum is limited at
/// −0.5 dBFS.
/// Threads: `start`, `stop`, `isSounding`, `reclaim`: audio queue. `render`: render. The others: any.
/// Real-time: `render` is wait-free and never frees memory; `reclaim` does that on the audio queue.
/// Lifetime: outlives the output that renders it and the players that use it.
class Mixer final : public RenderSource {
public:
    static constexpr std::size_t kMaxVoices = 36; ///< without those that fade

    explicit Mixer(const platform::Clock& clock) noexcept;

    /// Asks for `request` to be sounded. An event time that is not a number or more than 100 ms ahead counts as now.
    /// Errors: nothing when too many requests wait for the render thread; the stroke is counted and stays silent.
    [[nodiscard]] std::optional<VoiceTicket> start(VoiceRequest request);

    /// Fades a request out over 2 ms, or drops it when it has not begun; one that is over is left alone.
    void stop(VoiceTicket ticket) noexcept { exchange_.cancel(ticket); }

    /// Whether a request is waiting or sounding, as far as `reclaim` has learnt.
    [[nodiscard]] bool isSounding(VoiceTicket ticket) const noexcept { return exchange_.isOut(ticket); }

    /// Frees the memory of requests that are over.
    void reclaim() noexcept { exchange_.reclaim(); }

    void render(std::span<float> frames, const RenderCycle& cycle) noexcept REALTIME override;

    [[nodiscard]] MixerStatistics statistics() const noexcept;

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
    std::atomic<std::uint64_t> started_{0};    // render -> any, like the next four
    std::atomic<std::uint64_t> late_{0};
    std::atomic<std::uint64_t> tooOld_{0};
    std::atomic<std::uint64_t> stolen_{0};
    std::atomic<std::uint64_t> cut_{0};
    std::atomic<std::uint64_t> refused_{0}; // audio queue -> any
};

} // namespace tocca::player

#pragma once

#include "Player/Mixing/VoiceList.h"
#include "Player/Mixing/VoiceRequest.h"
#include "Support/Realtime.h"
#include "Support/SpscRing.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tocca::player {

/// Names a request while it is with the render thread, and none afterwards.
struct VoiceTicket {
    std::uint16_t slot;
    std::uint64_t serial;
};

/// Hands requests to the render thread and takes them back, so that their memory is only ever touched outside of it.
///
/// Requests lie in a fixed number of slots, and what travels is a slot's number; since either ring has room for all
/// slots, neither can be full, and a cancellation, being a flag, cannot be lost.
/// Threads: `submit`, `cancel`, `reclaim`: audio queue. The others: render.
/// Real-time: the render thread's members are wait-free.
class VoiceExchange {
public:
    /// Those that the render thread mixes, and as many that are on the way to it or back.
    static constexpr std::size_t kSlots = 2 * VoiceList::kCapacity;

    VoiceExchange();

    /// Hands `request` over, or returns nothing when every slot is out.
    [[nodiscard]] std::optional<VoiceTicket> submit(VoiceRequest request);

    /// Asks the render thread to end the request; does nothing when it is back already.
    void cancel(VoiceTicket ticket) noexcept;

    /// Frees what the render thread has given back.
    void reclaim() noexcept;

    /// Takes the slot of the next request, in the order of `submit`.
    [[nodiscard]] std::optional<std::uint16_t> take() noexcept REALTIME;

    [[nodiscard]] const VoiceRequest& request(std::uint16_t slot) const noexcept REALTIME
    {
        return slots_[slot].request;
    }

    [[nodiscard]] bool isCancelled(std::uint16_t slot) const noexcept REALTIME
    {
        return slots_[slot].isCancelled.load(std::memory_order_relaxed);
    }

    void giveBack(std::uint16_t slot) noexcept REALTIME;

private:
    struct Slot {
        VoiceRequest request;
        std::uint64_t serial = 0;             // audio queue; 0 while the slot is free
        std::atomic<bool> isCancelled{false}; // audio queue -> render
    };

    std::array<Slot, kSlots> slots_;
    std::vector<std::uint16_t> free_;   // audio queue
    std::uint64_t latestSerial_ = 0;    // audio queue
    SpscRing<std::uint16_t> submitted_; // audio queue -> render
    SpscRing<std::uint16_t> returned_;  // render -> audio queue
};

} // namespace tocca::player

#include "Player/Mixing/VoiceExchange.h"

#include <utility>

namespace tocca::player {

VoiceExchange::VoiceExchange()
    : submitted_(kSlots)
    , returned_(kSlots)
{
    free_.reserve(kSlots);
    for (std::size_t slot = kSlots; slot-- > 0;) {
        free_.push_back(static_cast<std::uint16_t>(slot));
    }
}

std::optional<VoiceTicket> VoiceExchange::submit(VoiceRequest request)
{
    if (free_.empty()) {
        return std::nullopt;
    }
    const std::uint16_t number = free_.back();
    free_.pop_back();
    Slot& slot = slots_[number];
    slot.request = std::move(request);
    slot.serial = ++latestSerial_;
    slot.isCancelled.store(false, std::memory_order_relaxed);
    submitted_.push(number);
    return VoiceTicket{.slot = number, .serial = slot.serial};
}

void VoiceExchange::cancel(VoiceTicket ticket) noexcept
{
    if (slots_[ticket.slot].serial == ticket.serial) {
        slots_[ticket.slot].isCancelled.store(true, std::memory_order_relaxed);
    }
}

void VoiceExchange::reclaim() noexcept
{
    while (const std::uint16_t* number = returned_.front()) {
        Slot& slot = slots_[*number];
        slot.request.clip.reset();
        slot.serial = 0;
        free_.push_back(*number);
        returned_.pop();
    }
}

std::optional<std::uint16_t> VoiceExchange::take() noexcept
{
    const std::uint16_t* next = submitted_.front();
    if (next == nullptr) {
        return std::nullopt;
    }
    const std::uint16_t slot = *next;
    submitted_.pop();
    return slot;
}

void VoiceExchange::giveBack(std::uint16_t slot) noexcept
{
    returned_.push(slot);
}

} // namespace tocca::player

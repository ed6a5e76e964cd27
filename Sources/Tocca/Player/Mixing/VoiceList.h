#pragma once

#include "Platform/AudioPlayer.h"
#include "Player/Mixing/Voice.h"
#include "Support/Realtime.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tocca::player {

/// A voice and the request that it belongs to.
struct ActiveVoice {
    Voice voice;
    double eventTime = 0.0;
    double startTime = 0.0; ///< when its first frame is due
    std::uint16_t slot = 0; ///< of the request
    bool hasBegun = false;
};

/// The voices of a mixer, oldest first, in fixed storage.
/// Threads: render. Real-time: every member is wait-free.
class VoiceList {
public:
    /// Each voice may still be fading out while another one has its place.
    static constexpr std::size_t kCapacity = 2 * platform::kMaxVoices;

    [[nodiscard]] std::span<ActiveVoice> all() noexcept REALTIME { return std::span(voices_).first(count_); }

    [[nodiscard]] bool isEmpty() const noexcept REALTIME { return count_ == 0; }

    [[nodiscard]] bool isFull() const noexcept REALTIME { return count_ == kCapacity; }

    /// The number of voices that are not fading.
    [[nodiscard]] std::size_t steadyCount() const noexcept REALTIME;

    /// The oldest voice that is fading, or the oldest that is not; null when there is none.
    [[nodiscard]] ActiveVoice* oldest(bool isFading) noexcept REALTIME;

    /// Adds a voice behind the others; the list must not be full.
    void add(const ActiveVoice& voice) noexcept REALTIME { voices_[count_++] = voice; }

    void remove(ActiveVoice* voice) noexcept REALTIME;

    /// Removes every voice for which `isOver` returns true, called once for each, oldest first.
    template <class IsOver>
    void removeIf(IsOver isOver) noexcept REALTIME
    {
        std::size_t kept = 0;
        for (std::size_t i = 0; i < count_; ++i) {
            if (!isOver(voices_[i])) {
                if (kept != i) {
                    voices_[kept] = voices_[i];
                }
                ++kept;
            }
        }
        count_ = kept;
    }

private:
    std::array<ActiveVoice, kCapacity> voices_{};
    std::size_t count_ = 0;
};

} // namespace tocca::player

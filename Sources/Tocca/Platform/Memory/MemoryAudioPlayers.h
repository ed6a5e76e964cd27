#pragma once

#include "Platform/AudioPlayer.h"
#include "Platform/Memory/VirtualTime.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tocca::platform::memory {

/// One player as a listener would describe it.
struct MemorySound {
    SharedBytes data;
    float rate = 1.0F; ///< as heard: 1 unless the player's rate was enabled
    float volume = 1.0F;
    float pan = 0.0F;
    std::optional<double> startedAt{};
    std::optional<double> eventTime{};
    bool wasPrepared = false;
    bool isReleased = false;
};

/// Players that keep a record of themselves instead of sounding.
class MemoryAudioPlayers : public AudioPlayers {
public:
    explicit MemoryAudioPlayers(VirtualTime& time)
        : time_(time)
    {}

    [[nodiscard]] Result<std::unique_ptr<AudioPlayer>> make(const SharedBytes& data) override;

    /// Makes the bytes of `text` undecodable: `make` fails with `reason`.
    void setUndecodable(const std::string& text, const std::string& reason) { undecodable_[text] = reason; }

    /// Every player made so far, in order.
    [[nodiscard]] const std::vector<std::shared_ptr<MemorySound>>& sounds() const noexcept { return sounds_; }

    /// The player made last; there must be one.
    [[nodiscard]] const MemorySound& last() const { return *sounds_.back(); }

private:
    class Player;

    VirtualTime& time_;
    std::map<std::string, std::string> undecodable_;
    std::vector<std::shared_ptr<MemorySound>> sounds_;
};

} // namespace tocca::platform::memory

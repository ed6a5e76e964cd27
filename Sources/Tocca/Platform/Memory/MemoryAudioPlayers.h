#pragma once

#include "Platform/AudioPlayer.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tocca::platform::memory {

/// A recording that was played, and how.
struct MemorySound : Playback {
    SharedBytes data;
    bool isReleased = false;
};

/// Players that keep a record of themselves instead of sounding.
class MemoryAudioPlayers : public AudioPlayers {
public:
    [[nodiscard]] Result<std::unique_ptr<AudioPlayer>> play(const SharedBytes& data,
                                                            const Playback& playback) override;

    /// Makes the bytes of `text` undecodable: `play` fails with `reason`.
    void setUndecodable(const std::string& text, const std::string& reason) { undecodable_[text] = reason; }

    /// Everything that was played so far, in order.
    [[nodiscard]] const std::vector<std::shared_ptr<MemorySound>>& sounds() const noexcept { return sounds_; }

    /// What was played last; there must be something.
    [[nodiscard]] const MemorySound& last() const { return *sounds_.back(); }

private:
    class Player;

    std::map<std::string, std::string> undecodable_;
    std::vector<std::shared_ptr<MemorySound>> sounds_;
};

} // namespace tocca::platform::memory

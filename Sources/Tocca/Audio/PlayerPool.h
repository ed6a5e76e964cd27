#pragma once

#include "Platform/AudioPlayer.h"

#include <array>
#include <cstddef>
#include <memory>

namespace tocca::audio {

/// Keeps the most recent players alive so that they go on sounding; a full pool replaces its slots in turn.
/// Threads: audio queue.
class PlayerPool {
public:
    void keep(std::unique_ptr<platform::AudioPlayer> player)
    {
        activePlayers_[poolIndex_] = std::move(player);
        poolIndex_ = (poolIndex_ + 1) % activePlayers_.size();
    }

private:
    std::array<std::unique_ptr<platform::AudioPlayer>, platform::kMaxVoices> activePlayers_;
    std::size_t poolIndex_ = 0;
};

} // namespace tocca::audio

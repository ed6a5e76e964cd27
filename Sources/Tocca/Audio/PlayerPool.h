#pragma once

#include "Platform/AudioPlayer.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace tocca::audio {

/// Keeps the most recent players alive so that they go on sounding; a full pool replaces its slots in turn.
/// Threads: audio queue.
class PlayerPool {
public:
    static constexpr std::size_t kPoolSize = 36;

    PlayerPool() { activePlayers_.reserve(kPoolSize); }

    void keep(std::unique_ptr<platform::AudioPlayer> player)
    {
        if (activePlayers_.size() < kPoolSize) {
            activePlayers_.push_back(std::move(player));
            return;
        }
        activePlayers_[poolIndex_] = std::move(player);
        poolIndex_ = (poolIndex_ + 1) % kPoolSize;
    }

private:
    std::vector<std::unique_ptr<platform::AudioPlayer>> activePlayers_;
    std::size_t poolIndex_ = 0;
};

} // namespace tocca::audio

#pragma once

#include <cstdint>

namespace tocca::player {

/// What became of the strokes that a mixer was asked for, since it was made.
struct MixerStatistics {
    std::uint64_t started = 0; ///< sounded, the late ones included
    std::uint64_t late = 0;    ///< sounded at the beginning of a block, because their own place was past
    std::uint64_t tooOld = 0;  ///< silent, because they happened more than 100 ms before their block
    std::uint64_t stolen = 0;  ///< faded early to make room for newer ones
    std::uint64_t cut = 0;     ///< ended without a fade, because even the fading ones left no room
    std::uint64_t refused = 0; ///< silent, because too many requests were waiting for the render thread
};

} // namespace tocca::player

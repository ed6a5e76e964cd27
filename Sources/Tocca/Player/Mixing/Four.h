#pragma once

#include <cstring>

namespace tocca::player {

/// Four samples that are worked on at once.
using Four [[gnu::vector_size(16)]] = float;

/// The four samples from there on, which need not be aligned.
inline Four load(const float* from) noexcept
{
    Four vector;
    std::memcpy(&vector, from, sizeof vector);
    return vector;
}

} // namespace tocca::player

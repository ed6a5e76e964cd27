#pragma once

#include "Platform/Random.h"

#include <cstddef>

namespace tocca::audio {

/// A float drawn uniformly from the closed range `low` … `high`, with 24 bits of resolution.
[[nodiscard]] inline float drawBetween(platform::Random& random, float low, float high)
{
    constexpr auto kTop = static_cast<float>((1U << 24U) - 1U);
    const auto bits = static_cast<float>(random.next() >> 40U);
    return bits == kTop ? high : low + (high - low) * (bits / kTop);
}

/// An index below `count` (at least 1) drawn uniformly: draws beyond the largest multiple of `count` are drawn again.
[[nodiscard]] inline std::size_t drawIndex(platform::Random& random, std::size_t count)
{
    const std::uint64_t excess = (~std::uint64_t{0} % count + 1) % count;
    std::uint64_t bits = random.next();
    while (bits > ~std::uint64_t{0} - excess) {
        bits = random.next();
    }
    return static_cast<std::size_t>(bits % count);
}

} // namespace tocca::audio

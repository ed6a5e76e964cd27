#pragma once

#include "Platform/Random.h"

#include <cstdint>

namespace tocca::render {

/// The same numbers for the same seed, everywhere. Source: SplitMix64.
class SeededRandom : public platform::Random {
public:
    explicit SeededRandom(std::uint64_t seed) noexcept
        : state_(seed)
    {}

    [[nodiscard]] std::uint64_t next() override
    {
        state_ += 0x9E3779B97F4A7C15U;
        std::uint64_t z = state_;
        z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
        z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
        return z ^ (z >> 31U);
    }

    /// From 0 to less than 1.
    [[nodiscard]] double share()
    {
        constexpr double kStep = 0x1p-53;
        return static_cast<double>(next() >> 11U) * kStep;
    }

private:
    std::uint64_t state_;
};

} // namespace tocca::render

#pragma once

#include <cstdint>

namespace tocca::platform {

/// The system's random number generator. Threads: any, one at a time.
class Random {
public:
    virtual ~Random() = default;

    /// 64 independent random bits.
    [[nodiscard]] virtual std::uint64_t next() = 0;
};

} // namespace tocca::platform

#pragma once

#include "Platform/Random.h"

#include <array>
#include <cstddef>

namespace tocca::platform::linux {

/// Random numbers of the kernel, fetched 256 bytes at a time.
class LinuxRandom : public Random {
public:
    [[nodiscard]] std::uint64_t next() override;

private:
    static constexpr std::size_t kNumbers = 32;

    std::array<std::uint64_t, kNumbers> numbers_{};
    std::size_t used_ = kNumbers;
};

} // namespace tocca::platform::linux

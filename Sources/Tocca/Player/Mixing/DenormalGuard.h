#pragma once

#include <cstdint>

namespace tocca::player {

/// Makes the processor treat denormal numbers as zero for a scope; a dying sound would otherwise cost many times its worth.
/// Threads: any, for itself. Real-time: wait-free. Does nothing on processors without such a mode.
class DenormalGuard {
public:
    DenormalGuard() noexcept;
    ~DenormalGuard();

    DenormalGuard(const DenormalGuard&) = delete;
    DenormalGuard& operator=(const DenormalGuard&) = delete;

private:
    std::uint32_t previous_;
};

} // namespace tocca::player

#pragma once

#include <atomic>
#include <cstdint>

namespace tocca::platform::linux {

/// Whether what is typed is somebody's secret just now, so that no key may be reported.
///
/// Several observers each hold a reason of their own; there is silence while any of them stands.
/// Threads: `set`: main. `isActive`: any.
/// Real-time: wait-free.
class SecureInput {
public:
    /// Reasons below this number are free for the observers; see where they are made.
    static constexpr unsigned kReasons = 32;

    void set(unsigned reason, bool stands) noexcept
    {
        const std::uint32_t bit = std::uint32_t{1} << reason;
        if (stands) {
            reasons_.fetch_or(bit, std::memory_order_release);
        } else {
            reasons_.fetch_and(~bit, std::memory_order_release);
        }
    }

    [[nodiscard]] bool isActive() const noexcept { return reasons_.load(std::memory_order_acquire) != 0; }

private:
    std::atomic<std::uint32_t> reasons_{0}; // main -> capture
};

} // namespace tocca::platform::linux

#pragma once

#include <atomic>
#include <cstdint>

namespace tocca::platform::linux {

/// Whether a secret may be typed just now, so that no key may be reported: true while at least one reason stands.
///
/// Threads: `set`: main. `isActive`: any.
/// Real-time: wait-free.
class SecureInput {
public:
    /// Each is set and cleared by one observer.
    enum Reason : unsigned {
        kPrompt,      ///< a window of a lock screen or a password prompt has the keyboard
        kSessionLock, ///< the login manager says that the session is locked
        kShell, ///< the desktop's shell itself has the keyboard, for a password as far as it can be known
        kFirstScreenSaver, ///< the first of several screen saver services is active; each has the next number
        kReasons = 32
    };

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

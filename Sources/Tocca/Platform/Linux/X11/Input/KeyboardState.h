#pragma once

#include "Platform/InputEvent.h"
#include "Platform/KeyCodes.h"
#include "Platform/Linux/X11/Input/KeyRoles.h"

#include <bitset>
#include <cstdint>
#include <optional>

namespace tocca::platform::linux {

/// An event whose time is still to be filled in.
struct KeyTransition {
    EventType type = EventType::KeyDown;
    InputEvent event;
};

/// Turns what the server says about keys and Caps Lock into the platform's transitions.
///
/// Threads: one at a time. Real-time: every member but `setRoles` is wait-free.
class KeyboardState {
public:
    using Keys = std::bitset<KeyRoles::kKeys>; // by X key code

    void setRoles(const KeyRoles& roles) noexcept;

    /// `isRepeat` is what the server says; nothing is left out for it.
    [[nodiscard]] std::optional<KeyTransition> press(std::uint8_t key, bool isRepeat = false) noexcept;

    /// Reports nothing for an ordinary key whose press was not reported.
    [[nodiscard]] std::optional<KeyTransition> release(std::uint8_t key) noexcept;

    [[nodiscard]] std::optional<KeyTransition> setLocked(bool isLocked) noexcept;

    /// The same for a time in which nothing may be reported; `catchUp` ends it.
    void pressSilently(std::uint8_t key) noexcept;
    void releaseSilently(std::uint8_t key) noexcept;
    void setLockedSilently(bool isLocked) noexcept;
    void observeSilently(const Keys& down, bool isLocked) noexcept;

    /// Reports the releases and the changed lock of the silent time. Ordinary keys that went down in it are not reported, and
    /// neither are their releases.
    template <class Report>
    void catchUp(Report report)
    {
        const Keys released = reported_ & ~held_;
        for (std::size_t key = 0; released.any() && key < released.size(); ++key) {
            if (released.test(key)) {
                reportIf(reportRelease(static_cast<std::uint8_t>(key)), report);
            }
        }
        reportIf(setLocked(isLocked_), report);
    }

    /// Begins with these keys down, of which nothing is reported.
    void adopt(const Keys& down, bool isLocked) noexcept;

    /// Takes over which keys are down after a time in which nothing was heard. Releases and a changed lock are reported;
    /// keys that went down meanwhile are not.
    template <class Report>
    void resynchronize(const Keys& down, bool isLocked, Report report)
    {
        observeSilently(down, isLocked);
        catchUp(report);
        reported_ = down;
    }

private:
    template <class Report>
    static void reportIf(const std::optional<KeyTransition>& transition, Report& report)
    {
        if (transition) {
            report(*transition);
        }
    }

    [[nodiscard]] std::optional<KeyTransition> reportRelease(std::uint8_t key) noexcept;
    [[nodiscard]] std::uint64_t flagsOf(const Keys& held, bool isLocked) const noexcept;
    void updateFlags() noexcept;

    KeyRoles roles_;
    Keys held_;
    Keys reported_; // whose press was reported and whose release was not
    bool isLocked_ = false;
    bool isLockReported_ = false;
    std::uint64_t flags_ = 0;
    std::uint16_t lockKeyCode_ = key::kCapsLock; // of the lock key that was pressed last
};

} // namespace tocca::platform::linux

#include "Platform/Linux/X11/Input/KeyboardState.h"

namespace tocca::platform::linux {

namespace {

KeyTransition flagsChanged(std::uint16_t keyCode, std::uint64_t flags) noexcept
{
    return {.type = EventType::FlagsChanged, .event = {.keyCode = keyCode, .flags = flags}};
}

} // namespace

void KeyboardState::setRoles(const KeyRoles& roles) noexcept
{
    roles_ = roles;
    updateFlags();
}

std::optional<KeyTransition> KeyboardState::press(std::uint8_t key, bool isRepeat) noexcept
{
    const KeyRoles::Role& role = roles_.of(key);
    held_.set(key);
    if (role.isLock) {
        lockKeyCode_ = role.keyCode;
        return std::nullopt;
    }
    if (!isRepeat) {
        reported_.set(key);
    }
    if (role.flag != 0) {
        flags_ |= role.flag;
        return flagsChanged(role.keyCode, flags_);
    }
    return KeyTransition{.type = EventType::KeyDown,
                         .event = {.keyCode = role.keyCode, .isAutorepeat = isRepeat, .flags = flags_}};
}

std::optional<KeyTransition> KeyboardState::release(std::uint8_t key) noexcept
{
    const bool wasHeld = held_.test(key);
    const bool wasReported = reported_.test(key);
    releaseSilently(key);
    reported_.reset(key);
    const KeyRoles::Role& role = roles_.of(key);
    if (role.flag != 0 && wasHeld) {
        // Also when its press was not reported: the flags of other events have told of it.
        return flagsChanged(role.keyCode, flags_); // the same modifier may be held on the other side
    }
    if (role.isLock || role.flag != 0 || !wasReported) {
        return std::nullopt;
    }
    return KeyTransition{.type = EventType::KeyUp, .event = {.keyCode = role.keyCode, .flags = flags_}};
}

std::optional<KeyTransition> KeyboardState::setLocked(bool isLocked) noexcept
{
    setLockedSilently(isLocked);
    if (isLocked == isLockReported_) {
        return std::nullopt;
    }
    isLockReported_ = isLocked;
    return flagsChanged(lockKeyCode_, flags_);
}

void KeyboardState::pressSilently(std::uint8_t key) noexcept
{
    held_.set(key);
    if (roles_.of(key).isLock) {
        lockKeyCode_ = roles_.of(key).keyCode;
    }
    updateFlags();
}

void KeyboardState::releaseSilently(std::uint8_t key) noexcept
{
    held_.reset(key);
    if (roles_.of(key).flag != 0) {
        updateFlags();
    }
}

void KeyboardState::setLockedSilently(bool isLocked) noexcept
{
    isLocked_ = isLocked;
    updateFlags();
}

void KeyboardState::observeSilently(const Keys& down, bool isLocked) noexcept
{
    held_ = down;
    setLockedSilently(isLocked);
}

void KeyboardState::adopt(const Keys& down, bool isLocked) noexcept
{
    observeSilently(down, isLocked);
    reported_ = down;
    isLockReported_ = isLocked;
}

std::optional<KeyTransition> KeyboardState::reportRelease(std::uint8_t key) noexcept
{
    reported_.reset(key);
    const KeyRoles::Role& role = roles_.of(key);
    if (role.isLock) {
        return std::nullopt;
    }
    // Without what went down meanwhile: nobody was told of that, and a release must not look like a press.
    const std::uint64_t flags = flagsOf(reported_, isLockReported_);
    if (role.flag != 0) {
        return flagsChanged(role.keyCode, flags);
    }
    return KeyTransition{.type = EventType::KeyUp, .event = {.keyCode = role.keyCode, .flags = flags}};
}

std::uint64_t KeyboardState::flagsOf(const Keys& held, bool isLocked) const noexcept
{
    std::uint64_t flags = isLocked ? flag::kAlphaShift : 0;
    for (std::size_t key = 0; key < held.size(); ++key) {
        if (held.test(key)) {
            flags |= roles_.of(static_cast<std::uint8_t>(key)).flag;
        }
    }
    return flags;
}

void KeyboardState::updateFlags() noexcept
{
    flags_ = flagsOf(held_, isLocked_);
}

} // namespace tocca::platform::linux

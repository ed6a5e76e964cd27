#include "Platform/Linux/X11/KeyboardState.h"

namespace tocca::platform::linux {

void KeyboardState::setRoles(const KeyRoles& roles) noexcept
{
    roles_ = roles;
    updateFlags();
}

std::optional<KeyTransition> KeyboardState::press(std::uint8_t key, bool isRepeat) noexcept
{
    const KeyRoles::Role& role = roles_.of(key);
    const bool wasHeld = held_.test(key);
    held_.set(key);
    if (role.isLock) {
        lockKeyCode_ = role.keyCode;
        return std::nullopt;
    }
    if (role.flag != 0) {
        flags_ |= role.flag;
        return wasHeld ? std::nullopt : std::optional(flagsChanged(role.keyCode));
    }
    return KeyTransition{
        .type = EventType::KeyDown,
        .event = {.keyCode = role.keyCode, .isAutorepeat = isRepeat || wasHeld, .flags = flags_}};
}

std::optional<KeyTransition> KeyboardState::release(std::uint8_t key) noexcept
{
    const KeyRoles::Role& role = roles_.of(key);
    if (!held_.test(key)) {
        return std::nullopt;
    }
    held_.reset(key);
    if (role.isLock) {
        return std::nullopt;
    }
    if (role.flag != 0) {
        updateFlags(); // the same modifier may be held on the other side
        return flagsChanged(role.keyCode);
    }
    return KeyTransition{.type = EventType::KeyUp, .event = {.keyCode = role.keyCode, .flags = flags_}};
}

std::optional<KeyTransition> KeyboardState::setLocked(bool isLocked) noexcept
{
    if (isLocked == isLocked_) {
        return std::nullopt;
    }
    isLocked_ = isLocked;
    updateFlags();
    return flagsChanged(lockKeyCode_);
}

void KeyboardState::adopt(const Keys& down, bool isLocked) noexcept
{
    held_ = down;
    isLocked_ = isLocked;
    updateFlags();
}

void KeyboardState::updateFlags() noexcept
{
    flags_ = isLocked_ ? flag::kAlphaShift : 0;
    for (std::size_t key = 0; key < held_.size(); ++key) {
        if (held_.test(key)) {
            flags_ |= roles_.of(static_cast<std::uint8_t>(key)).flag;
        }
    }
}

KeyTransition KeyboardState::flagsChanged(std::uint16_t keyCode) const noexcept
{
    return {.type = EventType::FlagsChanged, .event = {.keyCode = keyCode, .flags = flags_}};
}

} // namespace tocca::platform::linux

#include "Platform/Linux/X11/Input/KeyRoles.h"

#include "Platform/InputEvent.h"
#include "Platform/Linux/Keys/KeyMap.h"

#include <X11/X.h>
#include <X11/keysym.h>

namespace tocca::platform::linux {

namespace {

constexpr std::size_t kFirstKey = 8;
constexpr std::size_t kCapsLockKey = KEY_CAPSLOCK + kFirstKey;

std::uint64_t flagOfPosition(std::uint16_t keyCode) noexcept
{
    switch (keyCode) {
    case key::kLeftShift:
    case key::kRightShift:
        return flag::kShift;
    case key::kLeftControl:
    case key::kRightControl:
        return flag::kControl;
    case key::kLeftOption:
    case key::kRightOption:
        return flag::kOption;
    case key::kLeftCommand:
    case key::kRightCommand:
        return flag::kCommand;
    case key::kFunction:
        return flag::kFunction;
    default:
        return 0;
    }
}

std::uint64_t flagOfKeysym(std::uint32_t keysym) noexcept
{
    switch (keysym) {
    case XK_Shift_L:
    case XK_Shift_R:
        return flag::kShift;
    case XK_Control_L:
    case XK_Control_R:
        return flag::kControl;
    case XK_Alt_L:
    case XK_Alt_R:
    case XK_Meta_L:
    case XK_Meta_R:
        return flag::kOption;
    case XK_Super_L:
    case XK_Super_R:
    case XK_Hyper_L:
    case XK_Hyper_R:
        return flag::kCommand;
    default:
        return 0;
    }
}

std::uint64_t flagOfModifiers(std::uint8_t modifiers) noexcept
{
    const auto has = [modifiers](int mask) { return (modifiers & mask) != 0; };
    return has(ShiftMask)     ? flag::kShift
           : has(ControlMask) ? flag::kControl
           : has(Mod1Mask)    ? flag::kOption
           : has(Mod4Mask)    ? flag::kCommand
                              : 0;
}

bool isLockKeysym(std::uint32_t keysym) noexcept
{
    return keysym == XK_Caps_Lock || keysym == XK_Shift_Lock;
}

} // namespace

KeyRoles::KeyRoles() noexcept
{
    for (std::size_t key = kFirstKey; key < kKeys; ++key) {
        const std::uint16_t keyCode = keyCodeOf(static_cast<std::uint32_t>(key - kFirstKey));
        roles_[key] = {.keyCode = keyCode, .flag = flagOfPosition(keyCode), .isLock = key == kCapsLockKey};
    }
}

KeyRoles::KeyRoles(const Layout& layout) noexcept
    : KeyRoles()
{
    for (std::size_t key = kFirstKey; key < kKeys; ++key) {
        // Some layouts leave a key its name and give it another effect, which shows in the modifiers alone.
        roles_[key].isLock = isLockKeysym(layout.keysyms[key]) && layout.modifiers[key] == LockMask;
        if (roles_[key].isLock) {
            roles_[key].flag = 0;
        }
    }
    Role& capsLock = roles_[kCapsLockKey];
    if (!capsLock.isLock) {
        const std::uint32_t keysym = layout.keysyms[kCapsLockKey];
        capsLock.flag =
            isLockKeysym(keysym) ? flagOfModifiers(layout.modifiers[kCapsLockKey]) : flagOfKeysym(keysym);
    }
}

} // namespace tocca::platform::linux

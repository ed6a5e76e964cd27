#pragma once

#include "Platform/KeyCodes.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include <linux/input-event-codes.h>

namespace tocca::platform::linux {

/// How many kernel key codes there are.
inline constexpr std::size_t kKernelKeys = KEY_CNT;

/// What is added to a kernel code that has no code of its own here, so that every key keeps one to itself.
inline constexpr std::uint16_t kForeignKey = 0x100;

namespace detail {

/// The platform's codes by kernel code. The kernel numbers keys much as they lie on the board.
inline constexpr auto kKeyCodes = [] {
    using namespace key;
    std::array<std::uint16_t, kKernelKeys> codes{};
    for (std::size_t kernel = 0; kernel < codes.size(); ++kernel) {
        codes[kernel] = static_cast<std::uint16_t>(kForeignKey + kernel);
    }
    const auto from = [&codes](std::size_t kernel, std::initializer_list<std::uint16_t> keyCodes) {
        for (const std::uint16_t keyCode : keyCodes) {
            codes[kernel++] = keyCode;
        }
    };
    from(KEY_ESC, {kEscape, k1, k2, k3, k4, k5, k6, k7, k8, k9, k0, kMinus, kEqual, kDelete});
    from(KEY_TAB, {kTab, kQ, kW, kE, kR, kT, kY, kU, kI, kO, kP, kLeftBracket, kRightBracket, kReturn});
    from(KEY_LEFTCTRL, {kLeftControl, kA, kS, kD, kF, kG, kH, kJ, kK, kL, kSemicolon, kQuote, kGrave});
    from(KEY_LEFTSHIFT,
         {kLeftShift, kBackslash, kZ, kX, kC, kV, kB, kN, kM, kComma, kPeriod, kSlash, kRightShift});
    from(KEY_KPASTERISK, {kKeypadMultiply, kLeftOption, kSpace, kCapsLock});
    from(KEY_F1, {kF1, kF2, kF3, kF4, kF5, kF6, kF7, kF8, kF9, kF10});
    from(KEY_NUMLOCK, {kKeypadClear});
    from(KEY_KP7, {kKeypad7, kKeypad8, kKeypad9, kKeypadMinus, kKeypad4, kKeypad5, kKeypad6, kKeypadPlus,
                   kKeypad1, kKeypad2, kKeypad3, kKeypad0, kKeypadPoint});
    // Beside the left Shift key ISO boards have the key that US boards have above Tab. It has the code of that place, and so sounds at the
    // left; what lies above Tab keeps the same code, as no event tells which board it is on.
    from(KEY_102ND, {kGrave, kF11, kF12, kUnderscore});
    from(KEY_HENKAN, {kKana});
    from(KEY_MUHENKAN, {kEisu});
    from(KEY_KPENTER, {kKeypadEnter, kRightControl, kKeypadDivide});
    from(KEY_RIGHTALT, {kRightOption});
    from(KEY_HOME, {kHome, kUp, kPageUp, kLeft, kRight, kEnd, kDown, kPageDown, kHelp, kForwardDelete});
    from(KEY_MUTE, {kMute, kVolumeDown, kVolumeUp});
    from(KEY_KPEQUAL, {kKeypadEqual});
    from(KEY_KPCOMMA, {kKeypadComma, kKana, kEisu, kYen, kLeftCommand, kRightCommand, kMenu});
    from(KEY_F13, {kF13, kF14, kF15, kF16, kF17, kF18, kF19, kF20});
    from(KEY_FN, {kFunction});
    // These lie where other boards have F13, F14 and F15.
    codes[KEY_SYSRQ] = kF13;
    codes[KEY_SCROLLLOCK] = kF14;
    codes[KEY_PAUSE] = kF15;
    return codes;
}();

} // namespace detail

/// The platform's key code for a key of the kernel (linux/input-event-codes.h), by physical position. Total.
[[nodiscard]] constexpr std::uint16_t keyCodeOf(std::uint32_t kernelKey) noexcept
{
    return kernelKey < kKernelKeys ? detail::kKeyCodes[kernelKey]
                                   : static_cast<std::uint16_t>(kForeignKey + (kernelKey & 0xFFFU));
}

} // namespace tocca::platform::linux

#pragma once

#include <cstdint>

namespace tocca::platform {

/// What happened; the numbers are the bits of an `EventMask`, but for the two disabled notices.
enum class EventType : std::uint32_t {
    LeftMouseDown = 1,
    RightMouseDown = 3,
    KeyDown = 10,
    KeyUp = 11,
    FlagsChanged = 12,
    ScrollWheel = 22,
    OtherMouseDown = 25,
    TapDisabledByTimeout = 0xFFFFFFFE,
    TapDisabledByUserInput = 0xFFFFFFFF,
};

using EventMask = std::uint64_t;

[[nodiscard]] constexpr EventMask maskOf(EventType type) noexcept
{
    return EventMask{1} << static_cast<std::uint32_t>(type);
}

/// Modifier bits of `InputEvent::flags`; other bits may be set and mean nothing here.
namespace flag {
inline constexpr std::uint64_t kAlphaShift = 0x10000; ///< Caps Lock is on
inline constexpr std::uint64_t kShift = 0x20000;
inline constexpr std::uint64_t kControl = 0x40000;
inline constexpr std::uint64_t kOption = 0x80000;
inline constexpr std::uint64_t kCommand = 0x100000;
inline constexpr std::uint64_t kFunction = 0x800000;
} // namespace flag

/// One transition of a key, button or wheel.
///
/// Units: `time` is on the platform's `Clock`, the best estimate of when it physically happened; `scrollDeltaY` is in lines,
/// positive away from the user. Fields that a type does not use are 0.
struct InputEvent {
    std::uint16_t keyCode = 0; ///< one of `key`, or a number beyond them for a key that has none
    bool isAutorepeat = false;
    std::uint64_t flags = 0; ///< modifiers held after the event
    double scrollDeltaY = 0.0;
    double time = 0.0;
};

} // namespace tocca::platform

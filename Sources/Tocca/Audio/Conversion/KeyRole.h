#pragma once

#include "Audio/SoundProfile.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace tocca::audio {

/// What a key is to a sound pack.
enum class KeyRole : std::uint8_t {
    Typing, ///< letters, digits, punctuation
    Space,
    Enter,
    KeypadEnter, ///< stands in for a missing `Enter`
    Backspace,
    Delete, ///< stands in for a missing `Backspace`
    Other,  ///< stand in for missing `Typing` keys
};

/// The role of a key by its code in scan code set 1, with the extended prefix 0xE0 in the high byte.
[[nodiscard]] KeyRole roleOfScanCode(std::uint32_t code) noexcept;

/// The role of a key by its code in the kernel's input events.
[[nodiscard]] KeyRole roleOfEventCode(std::uint32_t code) noexcept;

/// The role of a key by what browsers and people call it ("KeyA", "a", "Space", "default"), or by the digits of its scan code.
[[nodiscard]] KeyRole roleOfKeyName(std::string_view name);

/// The role that the name of a file or folder names, if it names one ("SPACE", "backspace 2", "GENERIC_R0").
[[nodiscard]] std::optional<KeyRole> roleNamedBy(std::string_view fileOrFolder);

/// The direction that the name of a file or folder names, if it names one ("press", "key-up").
[[nodiscard]] std::optional<KeyStrokeAction> directionNamedBy(std::string_view fileOrFolder);

} // namespace tocca::audio

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tocca::audio {

/// What kind of key a physical position is; each kind has sounds of its own.
class KeyCategory {
public:
    enum Value : std::uint8_t { standard, spacebar, enter, backspace, modifier };

    constexpr KeyCategory(Value value) noexcept // NOLINT(google-explicit-constructor)
        : value_(value)
    {}

    constexpr operator Value() const noexcept { return value_; } // NOLINT(google-explicit-constructor)

    /// Classifies a key code; total. Threads: any. Real-time: wait-free.
    [[nodiscard]] static KeyCategory from(std::uint16_t keyCode) noexcept;

    /// The stereo position of a key code on a US board, −1 left … +1 right; total. Threads: any. Real-time: wait-free.
    [[nodiscard]] static float spatialPan(std::uint16_t keyCode) noexcept;

private:
    Value value_;
};

/// The direction of a stroke.
enum class KeyStrokeAction : std::uint8_t { down, up };

/// The built-in switches. Threads: any.
class SwitchType {
public:
    enum Value : std::uint8_t { holyPanda, cherryMXBlue, cherryMXBrown, nkCream, typewriter };

    static constexpr std::array<Value, 5> allCases{holyPanda, cherryMXBlue, cherryMXBrown, nkCream,
                                                   typewriter};

    constexpr SwitchType(Value value) noexcept // NOLINT(google-explicit-constructor)
        : value_(value)
    {}

    constexpr operator Value() const noexcept { return value_; } // NOLINT(google-explicit-constructor)

    /// The case whose raw value is exactly `rawValue`, if any.
    [[nodiscard]] static std::optional<SwitchType> fromRawValue(std::string_view rawValue) noexcept;

    /// The display name, which is also the identity.
    [[nodiscard]] std::string_view rawValue() const noexcept;

    [[nodiscard]] std::string_view id() const noexcept { return rawValue(); }

    [[nodiscard]] std::string_view description() const noexcept;
    [[nodiscard]] std::string_view iconName() const noexcept;

    /// The name of the switch's folder inside the built-in sound pack directory.
    [[nodiscard]] std::string_view folderName() const noexcept;

private:
    Value value_;
};

} // namespace tocca::audio

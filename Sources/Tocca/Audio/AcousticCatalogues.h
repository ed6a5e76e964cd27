#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tocca::audio {

/// What the keyboard stands on; it colours every key stroke. Threads: any.
class AcousticDeskSurface {
public:
    enum Value : std::uint8_t { cleanStudio, feltDeskmat, hardwoodDesk, gasketPoron };

    static constexpr std::array<Value, 4> allCases{cleanStudio, feltDeskmat, hardwoodDesk, gasketPoron};

    constexpr AcousticDeskSurface(Value value) noexcept // NOLINT(google-explicit-constructor)
        : value_(value)
    {}

    constexpr operator Value() const noexcept { return value_; } // NOLINT(google-explicit-constructor)

    /// The case whose raw value is exactly `rawValue`, if any.
    [[nodiscard]] static std::optional<AcousticDeskSurface> fromRawValue(std::string_view rawValue) noexcept;

    /// The display name, which is also the identity.
    [[nodiscard]] std::string_view rawValue() const noexcept;

    [[nodiscard]] std::string_view id() const noexcept { return rawValue(); }

    [[nodiscard]] std::string_view description() const noexcept;

    /// Linear factor on a key stroke's volume.
    [[nodiscard]] float deskGain() const noexcept;

    /// Factor on a key stroke's playback rate.
    [[nodiscard]] float deskRate() const noexcept;

private:
    Value value_;
};

/// Which micro-switch the mouse buttons sound like. Threads: any.
class MouseSwitchProfile {
public:
    enum Value : std::uint8_t { kailhGM8, omron50M, silentOptical };

    static constexpr std::array<Value, 3> allCases{kailhGM8, omron50M, silentOptical};

    constexpr MouseSwitchProfile(Value value) noexcept // NOLINT(google-explicit-constructor)
        : value_(value)
    {}

    constexpr operator Value() const noexcept { return value_; } // NOLINT(google-explicit-constructor)

    /// The case whose raw value is exactly `rawValue`, if any.
    [[nodiscard]] static std::optional<MouseSwitchProfile> fromRawValue(std::string_view rawValue) noexcept;

    /// The display name, which is also the identity.
    [[nodiscard]] std::string_view rawValue() const noexcept;

    [[nodiscard]] std::string_view id() const noexcept { return rawValue(); }

    [[nodiscard]] std::string_view description() const noexcept;

    /// The first part of the names under which the profile's two clicks are kept.
    [[nodiscard]] std::string_view stem() const noexcept;

private:
    Value value_;
};

/// A mouse button; every button beyond the two main ones is `other`.
enum class MouseButton : std::uint8_t { left, right, other };

} // namespace tocca::audio

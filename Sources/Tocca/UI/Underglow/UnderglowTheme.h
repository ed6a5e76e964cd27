#pragma once

#include "Platform/Desktop/Geometry.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tocca::ui {

/// The colours of the glow. Threads: any.
class UnderglowTheme {
public:
    enum Value : std::uint8_t { studioAmber, cyberpunk, polarWhite, matrixGreen };

    static constexpr std::array<Value, 4> allCases{studioAmber, cyberpunk, polarWhite, matrixGreen};

    constexpr UnderglowTheme(Value value) noexcept // NOLINT(google-explicit-constructor)
        : value_(value)
    {}

    constexpr operator Value() const noexcept { return value_; } // NOLINT(google-explicit-constructor)

    /// The case whose raw value is exactly `rawValue`, if any.
    [[nodiscard]] static std::optional<UnderglowTheme> fromRawValue(std::string_view rawValue) noexcept;

    /// The display name, which is also the identity.
    [[nodiscard]] std::string_view rawValue() const noexcept;

    [[nodiscard]] std::string_view id() const noexcept { return rawValue(); }

    [[nodiscard]] platform::Colour primaryColor() const noexcept;
    [[nodiscard]] platform::Colour secondaryColor() const noexcept;

private:
    Value value_;
};

} // namespace tocca::ui

#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace tocca::ui {

/// The pages of the Studio window, in the order of the sidebar. Threads: any.
class StudioTab {
public:
    enum Value : std::uint8_t { showroom, acoustics, stage, privacy, telemetry, settings };

    static constexpr std::array<Value, 6> allCases{showroom, acoustics, stage, privacy, telemetry, settings};

    constexpr StudioTab(Value value) noexcept // NOLINT(google-explicit-constructor)
        : value_(value)
    {}

    constexpr operator Value() const noexcept { return value_; } // NOLINT(google-explicit-constructor)

    /// The title, which is also the identity.
    [[nodiscard]] std::string_view rawValue() const noexcept;

    [[nodiscard]] std::string_view id() const noexcept { return rawValue(); }

    /// The name of the symbol beside the title.
    [[nodiscard]] std::string_view icon() const noexcept;

private:
    Value value_;
};

} // namespace tocca::ui

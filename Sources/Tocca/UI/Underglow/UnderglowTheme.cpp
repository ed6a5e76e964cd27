#include "UI/Underglow/UnderglowTheme.h"

#include <algorithm>

namespace tocca::ui {

namespace {

struct Facts {
    std::string_view rawValue;
    platform::Colour primary;
    platform::Colour secondary;
};

constexpr std::array<Facts, UnderglowTheme::allCases.size()> kFacts{{
    {"Studio Amber", {245, 158, 11}, {217, 119, 6}},
    {"Cyberpunk Neon", {6, 182, 212}, {236, 72, 153}},
    {"Polar White", {255, 255, 255}, {204, 204, 204}},
    {"Matrix Green", {16, 185, 129}, {5, 150, 105}},
}};

const Facts& factsOf(UnderglowTheme::Value value) noexcept
{
    return kFacts[value]; // NOLINT(cppcoreguidelines-pro-bounds-constant-array-index)
}

} // namespace

std::optional<UnderglowTheme> UnderglowTheme::fromRawValue(std::string_view rawValue) noexcept
{
    const auto* const found = std::find_if(allCases.begin(), allCases.end(), [rawValue](Value value) {
        return factsOf(value).rawValue == rawValue;
    });
    return found == allCases.end() ? std::nullopt : std::optional<UnderglowTheme>(*found);
}

std::string_view UnderglowTheme::rawValue() const noexcept
{
    return factsOf(value_).rawValue;
}

platform::Colour UnderglowTheme::primaryColor() const noexcept
{
    return factsOf(value_).primary;
}

platform::Colour UnderglowTheme::secondaryColor() const noexcept
{
    return factsOf(value_).secondary;
}

} // namespace tocca::ui

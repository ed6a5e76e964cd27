#include "UI/Underglow/UnderglowTheme.h"

namespace tocca::ui {

constexpr std::array<UnderglowTheme::Row, UnderglowTheme::allCases.size()> UnderglowTheme::rows{{
    {"Studio Amber", {245, 158, 11}, {217, 119, 6}},
    {"Cyberpunk Neon", {6, 182, 212}, {236, 72, 153}},
    {"Polar White", {255, 255, 255}, {204, 204, 204}},
    {"Matrix Green", {16, 185, 129}, {5, 150, 105}},
}};

} // namespace tocca::ui

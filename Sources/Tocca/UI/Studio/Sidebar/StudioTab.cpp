#include "UI/Studio/Sidebar/StudioTab.h"

namespace tocca::ui {
namespace {

struct TabRow {
    std::string_view rawValue;
    std::string_view icon;
};

constexpr std::array<TabRow, StudioTab::allCases.size()> kTabs{{
    {.rawValue = "Switch Showroom", .icon = "square.grid.2x2.fill"},
    {.rawValue = "Acoustic Console", .icon = "slider.vertical.3"},
    {.rawValue = "Keyboard Stage", .icon = "keyboard.fill"},
    {.rawValue = "Smart Mute & Privacy", .icon = "lock.shield.fill"},
    {.rawValue = "Hardware Telemetry", .icon = "waveform.path.ecg"},
    {.rawValue = "System Integration", .icon = "gearshape.2.fill"},
}};

} // namespace

std::string_view StudioTab::rawValue() const noexcept
{
    return kTabs[value_].rawValue;
}

std::string_view StudioTab::icon() const noexcept
{
    return kTabs[value_].icon;
}

} // namespace tocca::ui

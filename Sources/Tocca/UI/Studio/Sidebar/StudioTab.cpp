#include "UI/Studio/Sidebar/StudioTab.h"

namespace tocca::ui {

constexpr std::array<StudioTab::Row, StudioTab::allCases.size()> StudioTab::rows{{
    {"Switch Showroom", "square.grid.2x2.fill"},
    {"Acoustic Console", "slider.vertical.3"},
    {"Keyboard Stage", "keyboard.fill"},
    {"Smart Mute & Privacy", "lock.shield.fill"},
    {"Hardware Telemetry", "waveform.path.ecg"},
    {"System Integration", "gearshape.2.fill"},
}};

} // namespace tocca::ui

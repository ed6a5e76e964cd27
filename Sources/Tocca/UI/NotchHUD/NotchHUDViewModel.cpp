#include "UI/NotchHUD/NotchHUDViewModel.h"

#include "UI/NotchHUD/Waveform.h"

namespace tocca::ui {

NotchHUDViewModel::NotchHUDViewModel(NotchAcousticHUDController& controller, QObject* parent)
    : QObject(parent)
    , controller_(controller)
    , isExpandedLink_(controller.isExpanded.onChange([this](bool) {
        Q_EMIT motionChanged();
        Q_EMIT isExpandedChanged();
    }))
    , speedLink_(controller.currentWPM.onChange([this](std::int64_t) { Q_EMIT speedChanged(); }))
{}

bool NotchHUDViewModel::isFast() const
{
    return controller_.currentWPM.get() > kFastTyping;
}

const SpringParameters& NotchHUDViewModel::motion() const
{
    return isExpanded() ? NotchAcousticHUDController::kOpening : NotchAcousticHUDController::kClosing;
}

} // namespace tocca::ui

#include "UI/Studio/Stage/StageViewModel.h"

#include "UI/Quick/UiProperty.h"
#include "UI/SwitchSelection.h"

namespace tocca::ui {

StageViewModel::StageViewModel(const Controllers& controllers)
    : engine_(controllers.audioEngine)
    , keyboard_(controllers.keyboardMonitor)
    , customPackLink_(
          engine_.selectedCustomPack.onChange([this](const auto&) { Q_EMIT activeSwitchNameChanged(); }))
    , switchTypeLink_(
          engine_.currentSwitchType.onChange([this](const auto&) { Q_EMIT activeSwitchNameChanged(); }))
{}

QString StageViewModel::activeSwitchName() const
{
    return toQString(switchSelection::activeSwitchName(engine_));
}

void StageViewModel::type(const QString& text)
{
    testTypingText_ = text;
    Q_EMIT testTypingTextChanged();
}

} // namespace tocca::ui

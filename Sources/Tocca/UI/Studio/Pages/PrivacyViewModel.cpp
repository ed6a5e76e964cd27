#include "UI/Studio/Pages/PrivacyViewModel.h"

#include "Support/DisplayText.h"
#include "UI/Studio/StudioText.h"

namespace tocca::ui {

PrivacyViewModel::PrivacyViewModel(const Controllers& controllers)
    : smartMute_(controllers.smartMute)
{}

QString PrivacyViewModel::muteStatus() const
{
    return toQString(displayText(studioText::muteStatus(smartMute_.smartMuteReason.get())));
}

void PrivacyViewModel::toggleAutoMuteOnCalls()
{
    smartMute_.autoMuteOnCalls.set(!smartMute_.autoMuteOnCalls.get());
}

void PrivacyViewModel::toggleMuteOnSensitiveApps()
{
    smartMute_.muteOnSensitiveApps.set(!smartMute_.muteOnSensitiveApps.get());
}

} // namespace tocca::ui

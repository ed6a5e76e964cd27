#include "App/LaunchAtLogin.h"

#include "Platform/Desktop/LoginItem.h"
#include "Platform/Host.h"
#include "Platform/MainQueue.h"
#include "Platform/StandardOutput.h"

namespace tocca::app {

LaunchAtLogin::LaunchAtLogin(platform::Host& host)
    : host_(host)
{
    checkStatus();
}

LaunchAtLogin& LaunchAtLogin::shared()
{
    static auto& instance = *new LaunchAtLogin(platform::defaultHost());
    return instance;
}

void LaunchAtLogin::checkStatus()
{
    const bool isRegistered = host_.loginItem.status() == platform::LoginItemStatus::Enabled;
    host_.mainQueue.post(lifetime_.guard([this, isRegistered] { isEnabled.set(isRegistered); }));
}

void LaunchAtLogin::toggle()
{
    const bool wanted = !isEnabled.get();
    const Outcome outcome = wanted ? host_.loginItem.registerItem() : host_.loginItem.unregisterItem();
    if (outcome) {
        isEnabled.set(wanted);
    } else {
        host_.standardOutput.printLine("LaunchAtLogin toggle error: " + outcome.error().describe());
    }
}

} // namespace tocca::app

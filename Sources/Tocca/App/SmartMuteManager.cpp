#include "App/SmartMuteManager.h"

#include "App/SensitiveApplications.h"
#include "Platform/AudioDevices.h"
#include "Platform/Host.h"
#include "Platform/MainQueue.h"
#include "Platform/Timers.h"
#include "Support/DisplayText.h"

#include <algorithm>

namespace tocca::app {

namespace {

constexpr double kMicrophonePoll = 1.5; // seconds
constexpr const char* kMicrophoneReason = "Microphone in use (Call in progress)";

std::atomic<const SmartMuteManager*> sharedInstance{nullptr}; // main -> any

} // namespace

SmartMuteManager::SmartMuteManager(platform::Host& host)
    : host_(host)
    , mirrorLink_(
          isSmartMuted.onChange([this](bool isMuted) { mirror_.store(isMuted, std::memory_order_relaxed); }))
{
    setupWorkspaceMonitoring();
    startMicPolling();
    checkMicrophoneStatus();
    evaluateMuteState();
}

SmartMuteManager::~SmartMuteManager() = default;

SmartMuteManager& SmartMuteManager::shared()
{
    static auto& instance = *new SmartMuteManager(platform::defaultHost());
    sharedInstance.store(&instance, std::memory_order_release);
    return instance;
}

bool SmartMuteManager::isSharedMutedNow() noexcept
{
    const SmartMuteManager* const instance = sharedInstance.load(std::memory_order_acquire);
    return instance != nullptr && instance->isMutedNow();
}

void SmartMuteManager::setupWorkspaceMonitoring()
{
    activations_ = host_.workspace.onActivation([this](const auto& application) {
        if (application) {
            checkApp(*application);
        }
    });
    if (const auto frontmost = host_.workspace.frontmostApplication()) {
        checkApp(*frontmost);
    }
}

void SmartMuteManager::startMicPolling()
{
    micCheckTimer_ = host_.timers.scheduleRepeating(kMicrophonePoll, [this] { checkMicrophoneStatus(); });
}

void SmartMuteManager::checkApp(const platform::RunningApplication& application)
{
    if (muteOnSensitiveApps.get() && isSensitiveApplication(application)) {
        isBlacklistedAppActive_ = true;
        smartMuteReason.set("Privacy • " +
                            displayText(application.localizedName.value_or("Password Manager")) + " active");
    } else if (autoMuteOnCalls.get() && isCallApplication(application)) {
        isBlacklistedAppActive_ = true;
        smartMuteReason.set("Call App Active • " + displayText(application.localizedName.value_or("Call")));
    } else {
        isBlacklistedAppActive_ = false;
    }
    evaluateMuteState();
}

void SmartMuteManager::checkMicrophoneStatus()
{
    const bool isRunning = autoMuteOnCalls.get() && isAnyInputDeviceRunning();
    if (isRunning != isMicActive_) {
        isMicActive_ = isRunning;
        evaluateMuteState();
    }
}

bool SmartMuteManager::isAnyInputDeviceRunning() const
{
    const auto devices = host_.audioDevices.devices();
    return devices && std::any_of(devices.value().begin(), devices.value().end(), [](const auto& device) {
               return device.hasInputStreams && device.isRunningSomewhere;
           });
}

void SmartMuteManager::evaluateMuteState()
{
    host_.mainQueue.post(lifetime_.guard([this] {
        if (isMicActive_ && autoMuteOnCalls.get()) {
            isSmartMuted.set(true);
            smartMuteReason.set(kMicrophoneReason);
        } else if (isBlacklistedAppActive_) {
            isSmartMuted.set(true);
        } else {
            isSmartMuted.set(false);
            smartMuteReason.set(std::nullopt);
        }
    }));
}

} // namespace tocca::app

#pragma once

#include "Platform/Desktop/Workspace.h"
#include "Support/Lifetime.h"
#include "Support/Published.h"
#include "Support/Realtime.h"

#include <atomic>
#include <memory>
#include <optional>
#include <string>

namespace tocca::platform {
class Timer;
struct Host;
} // namespace tocca::platform

namespace tocca::app {

/// Decides whether all sound is to be suppressed right now, and why: a microphone is in use, or a call program or password
/// manager is in front.
///
/// The verdict is worked out again when an application comes to the front, when the polled microphone state changes, and at
/// the start; switching one of the two switches changes nothing until then.
/// Threads: main, but for `isMutedNow`.
class SmartMuteManager {
public:
    explicit SmartMuteManager(platform::Host& host);
    SmartMuteManager(const SmartMuteManager&) = delete;
    SmartMuteManager& operator=(const SmartMuteManager&) = delete;
    ~SmartMuteManager();

    /// The instance on the default host.
    static SmartMuteManager& shared();

    /// The verdict of the shared instance, false until it has been made. Threads: any. Real-time: wait-free.
    [[nodiscard]] static bool isSharedMutedNow() noexcept REALTIME;

    Published<bool> autoMuteOnCalls{true};     ///< heed the microphone and call programs
    Published<bool> muteOnSensitiveApps{true}; ///< heed password managers
    Published<bool> isSmartMuted{false};
    Published<std::optional<std::string>> smartMuteReason{std::nullopt}; ///< for display

    /// The verdict as playback reads it. Threads: any. Real-time: wait-free.
    [[nodiscard]] bool isMutedNow() const noexcept REALTIME
    {
        return mirror_.load(std::memory_order_relaxed);
    }

private:
    void setupWorkspaceMonitoring();
    void startMicPolling();
    void checkApp(const platform::RunningApplication& application);
    void checkMicrophoneStatus();
    [[nodiscard]] bool isAnyInputDeviceRunning() const;
    void evaluateMuteState();

    platform::Host& host_;
    bool isMicActive_ = false;
    bool isBlacklistedAppActive_ = false;
    std::unique_ptr<platform::Timer> micCheckTimer_;
    Subscription activations_;
    std::atomic<bool> mirror_{false}; // main -> any
    Subscription mirrorLink_;
    Lifetime lifetime_;
};

} // namespace tocca::app

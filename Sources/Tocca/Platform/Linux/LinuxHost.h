#pragma once

#include "Platform/Host.h"
#include "Platform/Linux/Applications/LinuxLoginItem.h"
#include "Platform/Linux/Audio/LinuxAudioDevices.h"
#include "Platform/Linux/System/LinuxClock.h"
#include "Platform/Linux/System/LinuxDirectories.h"
#include "Platform/Linux/System/LinuxFileStore.h"
#include "Platform/Linux/System/LinuxFiles.h"
#include "Platform/Linux/System/LinuxHaptics.h"
#include "Platform/Linux/System/LinuxLocalMonitors.h"
#include "Platform/Linux/System/LinuxMainQueue.h"
#include "Platform/Linux/System/LinuxRandom.h"
#include "Platform/Linux/System/LinuxSerialQueues.h"
#include "Platform/Linux/System/LinuxStandardOutput.h"
#include "Platform/Linux/System/LinuxThreads.h"
#include "Platform/Linux/System/LinuxTimers.h"
#include "Platform/Linux/Toolkit/LinuxWorkspace.h"
#include "Platform/Linux/Toolkit/SessionLock.h"
#include "Platform/Linux/Toolkit/ToolkitLoop.h"
#include "Platform/Linux/X11/SecureInput.h"
#include "Platform/Linux/X11/X11TrustQuery.h"
#include "Platform/Linux/X11/XInputEventTaps.h"

namespace tocca::platform::linux {

/// A Linux desktop: every service of the platform but the audio players, which are handed in.
///
/// Threads: main.
/// Lifetime: begins after the application object and outlives everything that uses the host.
class LinuxHost {
public:
    LinuxHost();

    /// The services, with `players` among them.
    [[nodiscard]] Host with(AudioPlayers& players) noexcept;

    [[nodiscard]] LinuxClock& clock() noexcept { return clock_; }

    [[nodiscard]] LinuxMainQueue& mainQueue() noexcept { return mainQueue_; }

    [[nodiscard]] LinuxStandardOutput& standardOutput() noexcept { return standardOutput_; }

    /// Where the windows hand in what they receive.
    [[nodiscard]] LinuxLocalMonitors& localMonitors() noexcept { return localMonitors_; }

    /// Passes a thread that the kernel refused on to RealtimeKit, by way of the main thread.
    [[nodiscard]] SchedulingAppeal appeal();

private:
    LinuxTimers timers_;
    LinuxMainQueue mainQueue_{timers_};
    ToolkitLoop loop_{mainQueue_, timers_};
    LinuxSerialQueues serialQueues_{appeal()};
    LinuxThreads threads_{appeal()};
    LinuxClock clock_;
    SecureInput secureInput_;
    SessionLock sessionLock_{secureInput_};
    XInputEventTaps eventTaps_{[this] { return !secureInput_.isActive(); }};
    LinuxLocalMonitors localMonitors_;
    LinuxStandardOutput standardOutput_;
    X11TrustQuery trustQuery_{standardOutput_};
    LinuxAudioDevices audioDevices_;
    LinuxHaptics haptics_;
    LinuxWorkspace workspace_{secureInput_, timers_};
    LinuxLoginItem loginItem_;
    LinuxDirectories directories_;
    LinuxFiles files_;
    LinuxFileStore fileStore_;
    LinuxRandom random_;
};

} // namespace tocca::platform::linux

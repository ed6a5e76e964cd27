#pragma once

#include "Platform/Host.h"
#include "Platform/Linux/Audio/LinuxAudioDevices.h"
#include "Platform/Linux/Freedesktop/Applications/LinuxLoginItem.h"
#include "Platform/Linux/Freedesktop/LinuxWorkspace.h"
#include "Platform/Linux/Freedesktop/SessionLock.h"
#include "Platform/Linux/Qt/LinuxApplication.h"
#include "Platform/Linux/Qt/LinuxLocalMonitors.h"
#include "Platform/Linux/Qt/LinuxScreens.h"
#include "Platform/Linux/Qt/LocalKeys.h"
#include "Platform/Linux/Qt/Menu/LinuxMainMenu.h"
#include "Platform/Linux/Qt/QtLoop.h"
#include "Platform/Linux/Qt/Windows/AboutWindow.h"
#include "Platform/Linux/Qt/Windows/LinuxOpenPanels.h"
#include "Platform/Linux/Qt/Windows/LinuxPanels.h"
#include "Platform/Linux/Qt/Windows/LinuxPopovers.h"
#include "Platform/Linux/Qt/Windows/LinuxWindows.h"
#include "Platform/Linux/Qt/Windows/NoticeWindow.h"
#include "Platform/Linux/System/Files/LinuxDirectories.h"
#include "Platform/Linux/System/Files/LinuxFileStore.h"
#include "Platform/Linux/System/Files/LinuxFiles.h"
#include "Platform/Linux/System/Files/LinuxUserDefaults.h"
#include "Platform/Linux/System/Files/ZipArchives.h"
#include "Platform/Linux/System/LinuxClock.h"
#include "Platform/Linux/System/LinuxHaptics.h"
#include "Platform/Linux/System/LinuxRandom.h"
#include "Platform/Linux/System/LinuxStandardOutput.h"
#include "Platform/Linux/System/SecureInput.h"
#include "Platform/Linux/System/Threads/LinuxMainQueue.h"
#include "Platform/Linux/System/Threads/LinuxSerialQueues.h"
#include "Platform/Linux/System/Threads/LinuxThreads.h"
#include "Platform/Linux/System/Threads/LinuxTimers.h"
#include "Platform/Linux/Tray/LinuxStatusBar.h"
#include "Platform/Linux/X11/Input/X11TrustQuery.h"
#include "Platform/Linux/X11/Input/XInputEventTaps.h"
#include "Player/Decoding/FileSoundDecoder.h"

#include <QByteArray>

#include <memory>
#include <string>

namespace tocca::platform::linux {

/// The Linux desktop: every service of the platform except the audio players, which are handed in.
///
/// Threads: main.
/// Lifetime: begins after the application object and outlives everything that uses the host.
class LinuxHost {
public:
    /// What `chooseDisplay` calls the display, and the desktop the launch, if it does.
    LinuxHost(const std::string& display, const QByteArray& launch);

    /// The services, with `players` among them.
    [[nodiscard]] Host with(AudioPlayers& players) noexcept;

    [[nodiscard]] LinuxClock& clock() noexcept { return clock_; }

    [[nodiscard]] LinuxMainQueue& mainQueue() noexcept { return mainQueue_; }

    [[nodiscard]] LinuxStandardOutput& standardOutput() noexcept { return standardOutput_; }

    /// The program itself; it tells, before anything is started, whether the session has another instance.
    [[nodiscard]] LinuxApplication& application() noexcept { return application_; }

    /// An appeal to RealtimeKit, made on the main thread.
    [[nodiscard]] SchedulingAppeal appeal();

private:
    void showAbout();
    void showSettings();

    LinuxTimers timers_;
    LinuxMainQueue mainQueue_{timers_};
    QtLoop loop_{mainQueue_, timers_};
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
    LinuxWorkspace workspace_{secureInput_, timers_, [this] { showSettings(); }};
    LinuxLoginItem loginItem_;
    LinuxDirectories directories_;
    LinuxFiles files_;
    LinuxFileStore fileStore_;
    ZipArchives archives_;
    player::FileSoundDecoder soundDecoder_;
    LinuxRandom random_;
    LinuxUserDefaults userDefaults_{serialQueues_};
    OwnWindows ownWindows_;
    XDesktop xDesktop_;
    LocalKeys localKeys_{localMonitors_};
    LinuxScreens screens_;
    LinuxWindows windows_{ownWindows_};
    LinuxPanels panels_{ownWindows_, xDesktop_};
    LinuxPopovers popovers_{ownWindows_};
    LinuxStatusBar statusBar_;
    LinuxApplication application_;
    LinuxMainMenu mainMenu_;
    LinuxOpenPanels openPanels_{ownWindows_};
    std::unique_ptr<AboutWindow> about_;     // from its first showing on
    std::unique_ptr<NoticeWindow> settings_; // likewise
};

} // namespace tocca::platform::linux

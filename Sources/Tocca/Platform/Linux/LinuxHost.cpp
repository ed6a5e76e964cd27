#include "Platform/Linux/LinuxHost.h"

#include "Platform/Linux/Freedesktop/RealtimeKit.h"

namespace tocca::platform::linux {

LinuxHost::LinuxHost(const std::string& display, const QByteArray& launch)
    : statusBar_(xDesktop_, {.openStudio = [this] { application_.reopen(); },
                             .quit = [this] { application_.terminate(); }})
    , application_({.display = display,
                    .launch = launch,
                    .windows = ownWindows_,
                    .output = standardOutput_,
                    .hasStatusIcon = [this] { return statusBar_.isShown(); }})
    , mainMenu_(ownWindows_,
                {.showAbout = [this] { showAbout(); },
                 .quit = [this] { application_.terminate(); },
                 .hidden = [this] { application_.setActivationPolicy(ActivationPolicy::accessory); }})
{
    ownWindows_.setListener(&localKeys_);
}

Host LinuxHost::with(AudioPlayers& players) noexcept
{
    // Every service has a type of its own, so the compiler keeps the order.
    return {mainQueue_,     serialQueues_,   threads_,     timers_,       clock_,       eventTaps_,
            localMonitors_, trustQuery_,     players,      audioDevices_, haptics_,     workspace_,
            loginItem_,     directories_,    files_,       fileStore_,    archives_,    soundDecoder_,
            random_,        standardOutput_, application_, screens_,      windows_,     panels_,
            popovers_,      statusBar_,      mainMenu_,    openPanels_,   userDefaults_};
}

SchedulingAppeal LinuxHost::appeal()
{
    return [this](std::uint64_t threadId) {
        mainQueue_.post([threadId] { raiseThreadThroughRealtimeKit(threadId); });
    };
}

void LinuxHost::showAbout()
{
    if (!about_) {
        about_ = std::make_unique<AboutWindow>(ownWindows_);
    }
    about_->showInFront();
}

void LinuxHost::showSettings()
{
    if (!settings_) {
        settings_ = std::make_unique<NoticeWindow>();
    }
    settings_->show(QStringLiteral("Hearing the keyboard"),
                    QString::fromStdString(trustQuery_.explanation()));
}

} // namespace tocca::platform::linux

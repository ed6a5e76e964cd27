#include "Platform/Linux/LinuxHost.h"

#include "Platform/Linux/Freedesktop/RealtimeKit.h"

namespace tocca::platform::linux {

LinuxHost::LinuxHost()
    : statusBar_(xDesktop_, {.openStudio = [this] { application_.reopen(); },
                             .quit = [this] { application_.terminate(); }})
    , application_({.windows = ownWindows_,
                    .output = standardOutput_,
                    .hasStatusIcon = [this] { return statusBar_.isShown(); }})
    , mainMenu_(ownWindows_,
                {.showAbout = [this] { showAbout(); }, .quit = [this] { application_.terminate(); }})
{
    ownWindows_.setListener(&localKeys_);
}

Host LinuxHost::with(AudioPlayers& players) noexcept
{
    return {.mainQueue = mainQueue_,
            .serialQueues = serialQueues_,
            .threads = threads_,
            .timers = timers_,
            .clock = clock_,
            .eventTaps = eventTaps_,
            .localMonitors = localMonitors_,
            .trustQuery = trustQuery_,
            .audioPlayers = players,
            .audioDevices = audioDevices_,
            .haptics = haptics_,
            .workspace = workspace_,
            .loginItem = loginItem_,
            .directories = directories_,
            .files = files_,
            .fileStore = fileStore_,
            .random = random_,
            .standardOutput = standardOutput_,
            .application = application_,
            .screens = screens_,
            .windows = windows_,
            .panels = panels_,
            .popovers = popovers_,
            .statusBar = statusBar_,
            .mainMenu = mainMenu_,
            .openPanels = openPanels_,
            .userDefaults = userDefaults_};
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
        about_ = std::make_unique<AboutWindow>();
    }
    about_->showInFront();
}

} // namespace tocca::platform::linux

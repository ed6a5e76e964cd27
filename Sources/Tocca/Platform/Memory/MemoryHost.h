#pragma once

#include "Platform/Host.h"
#include "Platform/Memory/MemoryArchives.h"
#include "Platform/Memory/MemoryAudioPlayers.h"
#include "Platform/Memory/MemoryDesktop.h"
#include "Platform/Memory/MemoryEventTaps.h"
#include "Platform/Memory/MemoryFileStore.h"
#include "Platform/Memory/MemoryFiles.h"
#include "Platform/Memory/MemoryQueues.h"
#include "Platform/Memory/MemoryServices.h"
#include "Platform/Memory/MemoryThreads.h"
#include "Platform/Memory/MemoryTimers.h"
#include "Platform/Memory/VirtualTime.h"

namespace tocca::platform::memory {

/// A complete computer in memory: deterministic, in virtual time, with every service of the platform.
///
/// Threads: the thread that makes it plays the main thread, and the others when their turn comes.
class MemoryHost {
public:
    MemoryHost();

    /// Lets a controller be built on this machine: `AudioEngine engine(host, …)`.
    operator Host&() noexcept { return host_; }

    /// Moves time on by `seconds`; main queue, timers, threads and audio queue each run at their own instant.
    void advance(double seconds) { time_.advance(seconds); }

    /// Runs everything that is due now without moving time.
    void settle() { time_.settle(); }

    [[nodiscard]] VirtualTime& clock() noexcept { return time_; }

    [[nodiscard]] MemoryMainQueue& mainQueue() noexcept { return mainQueue_; }

    [[nodiscard]] MemorySerialQueues& serialQueues() noexcept { return serialQueues_; }

    [[nodiscard]] MemoryThreads& threads() noexcept { return threads_; }

    [[nodiscard]] MemoryTimers& timers() noexcept { return timers_; }

    [[nodiscard]] MemoryEventTaps& eventTaps() noexcept { return eventTaps_; }

    [[nodiscard]] MemoryLocalMonitors& localMonitors() noexcept { return localMonitors_; }

    [[nodiscard]] MemoryTrustQuery& trustQuery() noexcept { return trustQuery_; }

    [[nodiscard]] MemoryAudioPlayers& audioPlayers() noexcept { return audioPlayers_; }

    [[nodiscard]] MemoryAudioDevices& audioDevices() noexcept { return audioDevices_; }

    [[nodiscard]] MemoryLoginItem& loginItem() noexcept { return loginItem_; }

    [[nodiscard]] MemoryHaptics& haptics() noexcept { return haptics_; }

    [[nodiscard]] MemoryWorkspace& workspace() noexcept { return workspace_; }

    [[nodiscard]] MemoryDirectories& directories() noexcept { return directories_; }

    [[nodiscard]] MemoryFiles& files() noexcept { return files_; }

    [[nodiscard]] MemoryFileStore& fileStore() noexcept { return fileStore_; }

    [[nodiscard]] MemoryArchives& archives() noexcept { return archives_; }

    [[nodiscard]] MemorySoundDecoder& soundDecoder() noexcept { return soundDecoder_; }

    [[nodiscard]] MemoryRandom& random() noexcept { return random_; }

    [[nodiscard]] MemoryStandardOutput& standardOutput() noexcept { return standardOutput_; }

    [[nodiscard]] MemoryApplication& application() noexcept { return application_; }

    [[nodiscard]] MemoryScreens& screens() noexcept { return screens_; }

    [[nodiscard]] MemoryWindows& windows() noexcept { return windows_; }

    [[nodiscard]] MemoryPanels& panels() noexcept { return panels_; }

    [[nodiscard]] MemoryPopovers& popovers() noexcept { return popovers_; }

    [[nodiscard]] MemoryStatusBar& statusBar() noexcept { return statusBar_; }

    [[nodiscard]] MemoryMainMenu& mainMenu() noexcept { return mainMenu_; }

    [[nodiscard]] MemoryOpenPanels& openPanels() noexcept { return openPanels_; }

    [[nodiscard]] MemoryUserDefaults& userDefaults() noexcept { return userDefaults_; }

    /// What windows, panels, popover, menu and program did, in order.
    [[nodiscard]] Journal& journal() noexcept { return journal_; }

private:
    VirtualTime time_;
    MemoryThreads threads_;
    MemoryMainQueue mainQueue_;
    MemorySerialQueues serialQueues_;
    MemoryTimers timers_;
    MemoryEventTaps eventTaps_;
    MemoryLocalMonitors localMonitors_;
    MemoryTrustQuery trustQuery_;
    MemoryAudioPlayers audioPlayers_;
    MemoryAudioDevices audioDevices_;
    MemoryLoginItem loginItem_;
    MemoryHaptics haptics_;
    MemoryWorkspace workspace_;
    MemoryDirectories directories_;
    MemoryDisk disk_;
    MemoryFiles files_{disk_};
    MemoryFileStore fileStore_{disk_};
    MemoryArchives archives_;
    MemorySoundDecoder soundDecoder_;
    MemoryRandom random_;
    MemoryStandardOutput standardOutput_;
    Journal journal_;
    MemoryApplication application_{journal_};
    MemoryScreens screens_;
    MemoryWindows windows_{journal_};
    MemoryPanels panels_{journal_};
    MemoryPopovers popovers_{journal_};
    MemoryStatusBar statusBar_{journal_};
    MemoryMainMenu mainMenu_{journal_};
    MemoryOpenPanels openPanels_;
    MemoryUserDefaults userDefaults_;
    Host host_;
};

} // namespace tocca::platform::memory

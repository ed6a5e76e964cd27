#include "Platform/Linux/LinuxHost.h"

#include "Platform/Linux/Toolkit/RealtimeKit.h"

namespace tocca::platform::linux {

LinuxHost::LinuxHost() = default;

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
            .standardOutput = standardOutput_};
}

SchedulingAppeal LinuxHost::appeal()
{
    return [this](std::uint64_t threadId) {
        mainQueue_.post([threadId] { raiseThreadThroughRealtimeKit(threadId); });
    };
}

} // namespace tocca::platform::linux

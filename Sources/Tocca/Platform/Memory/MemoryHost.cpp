#include "Platform/Memory/MemoryHost.h"

#include "Support/ThreadRole.h"

namespace tocca::platform::memory {

MemoryHost::MemoryHost()
    : threads_(time_)
    , mainQueue_(time_)
    , serialQueues_(time_)
    , timers_(time_)
    , eventTaps_(time_, threads_)
    , host_{
          .mainQueue = mainQueue_,
          .serialQueues = serialQueues_,
          .threads = threads_,
          .timers = timers_,
          .clock = time_,
          .eventTaps = eventTaps_,
          .localMonitors = localMonitors_,
          .trustQuery = trustQuery_,
          .audioPlayers = audioPlayers_,
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
          .userDefaults = userDefaults_,
      }
{
    setThreadRole(ThreadRole::Main);
}

} // namespace tocca::platform::memory

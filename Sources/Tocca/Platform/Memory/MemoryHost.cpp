#include "Platform/Memory/MemoryHost.h"

#include "Support/ThreadRole.h"

namespace tocca::platform::memory {

MemoryHost::MemoryHost()
    : threads_(time_)
    , mainQueue_(time_)
    , serialQueues_(time_)
    , timers_(time_)
    , eventTaps_(time_, threads_)
    , host_{mainQueue_,     serialQueues_,   threads_,      timers_,       time_,        eventTaps_,
            localMonitors_, trustQuery_,     audioPlayers_, audioDevices_, haptics_,     workspace_,
            loginItem_,     directories_,    files_,        fileStore_,    archives_,    soundDecoder_,
            random_,        standardOutput_, application_,  screens_,      windows_,     panels_,
            popovers_,      statusBar_,      mainMenu_,     openPanels_,   userDefaults_}
{
    setThreadRole(ThreadRole::Main);
}

} // namespace tocca::platform::memory

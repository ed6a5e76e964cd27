#include "Platform/Memory/MemoryHost.h"

#include "Support/ThreadRole.h"

namespace tocca::platform::memory {

std::uint64_t MemoryRandom::next()
{
    if (!scripted_.empty()) {
        const std::uint64_t value = scripted_.front();
        scripted_.pop_front();
        return value;
    }
    // splitmix64 (Steele, Lea and Flood 2014)
    state_ += 0x9E3779B97F4A7C15;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EB;
    return z ^ (z >> 31U);
}

MemoryHost::MemoryHost()
    : threads_(time_)
    , mainQueue_(time_)
    , serialQueues_(time_)
    , timers_(time_)
    , eventTaps_(time_, threads_)
    , audioPlayers_(time_)
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
          .haptics = haptics_,
          .workspace = workspace_,
          .directories = directories_,
          .files = files_,
          .fileStore = fileStore_,
          .random = random_,
          .standardOutput = standardOutput_,
      }
{
    setThreadRole(ThreadRole::Main);
}

} // namespace tocca::platform::memory

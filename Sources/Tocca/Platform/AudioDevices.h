#pragma once

#include "Support/Result.h"

#include <string>
#include <vector>

namespace tocca::platform {

/// One device of the sound server, as it is right now.
struct AudioDevice {
    std::string name;
    bool hasInputStreams = false;    ///< it can record
    bool isRunningSomewhere = false; ///< any program records from it
};

/// The sound server's devices. What listens to a loudspeaker (monitors, level meters, effect daemons) is no input.
class AudioDevices {
public:
    virtual ~AudioDevices() = default;

    /// Every device, from a table that the server's events keep up to date: a call costs microseconds.
    /// Threads: main. Errors: the reason why there is no server to ask.
    [[nodiscard]] virtual Result<std::vector<AudioDevice>> devices() const = 0;
};

} // namespace tocca::platform

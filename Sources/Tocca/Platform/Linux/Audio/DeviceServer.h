#pragma once

#include "Platform/AudioDevices.h"
#include "Platform/Linux/Audio/ServerLink.h"

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace tocca::platform::linux {

/// The devices of one kind of sound server, told to an observer whenever they change.
/// Threads: control. The observer is called there, never from inside the constructor.
class DeviceServer : public ServerLink {
public:
    struct Devices {
        std::vector<AudioDevice> inputs;
        bool hasAny = false; ///< there is something to record from or to play to
    };

    /// Hears nothing when there is no server.
    using Observer = std::function<void(const std::optional<Devices>&)>;

protected:
    DeviceServer(ControlLoop& loop, Observer observer)
        : ServerLink(loop)
        , observer_(std::move(observer))
    {}

    const Observer observer_;
};

} // namespace tocca::platform::linux

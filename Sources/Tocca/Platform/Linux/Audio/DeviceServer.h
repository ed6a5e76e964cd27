#pragma once

#include "Platform/AudioDevices.h"

#include <functional>
#include <optional>
#include <vector>

namespace tocca::platform::linux {

/// The devices of one kind of sound server, told again whenever they change.
///
/// It connects by itself, and again after a loss: at a sign of the server, else every few seconds.
/// Threads: control. The observer is called there, never from inside `open`.
class DeviceServer {
public:
    struct Devices {
        std::vector<AudioDevice> inputs;
        bool hasAny = false; ///< there is something to record from or to play to
    };

    /// Hears nothing when there is no server.
    using Observer = std::function<void(const std::optional<Devices>&)>;

    virtual ~DeviceServer() = default;

    /// Begins to look for the server; called once.
    virtual void open() = 0;

    /// Looks for the server soon instead of at the next regular attempt, as there is a sign of it.
    virtual void lookNow() = 0;
};

namespace timing {
inline constexpr double kAtOnce = 1e-6; ///< a timer set to 0 is off
inline constexpr double kSoon = 0.25;   ///< a server that has just made its socket may not listen yet
inline constexpr double kRetry = 5.0;
} // namespace timing

} // namespace tocca::platform::linux

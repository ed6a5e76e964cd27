#pragma once

#include "Platform/Linux/Audio/OutputMeter.h"
#include "Platform/Linux/Audio/PipeWire/QuantumGovernor.h"
#include "Platform/Linux/Audio/ProgressWatch.h"
#include "Platform/Linux/Audio/ServerLink.h"
#include "Platform/Linux/System/LinuxClock.h"
#include "Player/RenderSource.h"

#include <functional>
#include <utility>

namespace tocca::platform::linux {

/// What a sound server can do for us.
enum class Availability {
    Unknown, ///< not heard from yet
    Absent,  ///< cannot be connected to
    NoSink,  ///< there, but has nothing to play to
    Ready,   ///< there, and plays
};

/// The part of the output that plays through one kind of sound server.
///
/// Blocks are rendered while it is `Ready` and awake; an output begins awake.
/// Order: the observer hears `Ready` before the first block is rendered, and that it ended after the last one was.
/// Threads: control. The observer is called there, never from inside the constructor.
/// Lifetime: destruction ends the last call of the source before it returns.
class ServerOutput : public ServerLink {
public:
    using Observer = std::function<void(Availability)>;

    /// Keeps rendering, or gives the server's time back.
    virtual void setAwake(bool isAwake) = 0;

    /// Looks after an output that is `Ready` and awake; called a few times a second. Units: seconds, monotonic.
    virtual void inspect(double now) = 0;

protected:
    /// Asks for blocks of `smallest` frames, and of up to `largest` where the computer cannot keep up.
    ServerOutput(ControlLoop& loop, player::RenderSource& source, OutputMeter& meter, Observer observer,
                 int smallest, int largest)
        : ServerLink(loop)
        , source_(source)
        , meter_(meter)
        , governor_(smallest, largest)
        , observer_(std::move(observer))
    {}

    [[nodiscard]] Availability availability() const noexcept { return availability_; }

    void report(Availability availability)
    {
        if (std::exchange(availability_, availability) != availability) {
            observer_(availability);
        }
    }

    /// Tells those who watch the rendering that it begins or ends now.
    void disturb() noexcept
    {
        const double now = monotonicSeconds();
        progress_.restart(now);
        governor_.disturb(now);
    }

    player::RenderSource& source_;
    OutputMeter& meter_;
    QuantumGovernor governor_;
    ProgressWatch progress_;
    bool isAwake_ = true;

private:
    const Observer observer_;
    Availability availability_ = Availability::Unknown;
};

} // namespace tocca::platform::linux

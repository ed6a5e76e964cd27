#include "Platform/Linux/Audio/PipeWire/ActivityGate.h"

#include "Platform/Linux/System/LinuxClock.h"

#include <utility>

namespace tocca::platform::linux {

ActivityGate::ActivityGate(double idleSeconds, std::function<void()> wake)
    : idleSeconds_(idleSeconds)
    , wake_(std::move(wake))
    , lastActivity_(monotonicSeconds())
{}

void ActivityGate::note() noexcept
{
    // Sequentially consistent on both sides: either this thread sees the gate closed, or the closing thread sees the stroke.
    lastActivity_.store(monotonicSeconds());
    if (!isOpen_.load() && !isWaking_.exchange(true)) {
        wake_();
    }
}

bool ActivityGate::closeIfIdle(double now)
{
    if (!isOpen_.load() || now - lastActivity_.load() < idleSeconds_) {
        return false;
    }
    isWaking_.store(false);
    isOpen_.store(false);
    if (now - lastActivity_.load() < idleSeconds_) {
        isOpen_.store(true);
        return false;
    }
    return true;
}

void ActivityGate::open(double now)
{
    lastActivity_.store(now);
    isOpen_.store(true);
}

} // namespace tocca::platform::linux

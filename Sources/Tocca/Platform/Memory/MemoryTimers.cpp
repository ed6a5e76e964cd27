#include "Platform/Memory/MemoryTimers.h"

#include <memory>
#include <utility>

namespace tocca::platform::memory {

namespace {

struct Ticker {
    VirtualTime& time;
    double interval;
    Task tick;

    static void schedule(const std::shared_ptr<Ticker>& self, double due)
    {
        self->time.at(due, self, [weak = std::weak_ptr<Ticker>(self), due] {
            if (const auto live = weak.lock()) {
                schedule(live, due + live->interval);
                live->tick();
            }
        });
    }
};

/// Keeps what a timer's calls need alive; what is scheduled only refers to it weakly.
class Held : public Timer {
public:
    explicit Held(std::shared_ptr<const void> state)
        : state_(std::move(state))
    {}

private:
    std::shared_ptr<const void> state_;
};

} // namespace

std::unique_ptr<Timer> MemoryTimers::scheduleRepeating(double interval, Task tick)
{
    auto ticker = std::make_shared<Ticker>(Ticker{time_, interval, std::move(tick)});
    Ticker::schedule(ticker, time_.now() + interval);
    return std::make_unique<Held>(std::move(ticker));
}

std::unique_ptr<Timer> MemoryTimers::scheduleOnce(double delay, Task fire)
{
    auto call = std::make_shared<Task>(std::move(fire));
    time_.at(time_.now() + delay, call, [weak = std::weak_ptr<Task>(call)] {
        if (const auto live = weak.lock()) {
            (*live)();
        }
    });
    return std::make_unique<Held>(std::move(call));
}

} // namespace tocca::platform::memory

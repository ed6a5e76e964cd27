#include "Platform/Linux/System/Threads/LinuxTimers.h"

#include "Platform/Linux/System/FileDescriptor.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <utility>

#include <sys/timerfd.h>
#include <unistd.h>

namespace tocca::platform::linux {

namespace {

using Nanoseconds = std::int64_t;

constexpr Nanoseconds kPerSecond = 1'000'000'000;
constexpr Nanoseconds kShortestInterval = 100'000;
constexpr double kLongestSeconds = 1e9;

Nanoseconds now() noexcept
{
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Rounds up, so that nothing fires too soon.
Nanoseconds nanosecondsOf(double seconds) noexcept
{
    const double bounded = seconds > 0 ? std::min(seconds, kLongestSeconds) : 0.0;
    return static_cast<Nanoseconds>(std::ceil(bounded * static_cast<double>(kPerSecond)));
}

struct Turn {
    Nanoseconds due = 0;
    std::uint64_t sequence = 0;

    bool operator<(const Turn& other) const noexcept
    {
        return due != other.due ? due < other.due : sequence < other.sequence;
    }
};

struct Entry {
    Task task;
    Nanoseconds interval = 0; // 0: fires once
    Turn turn;
    bool isCancelled = false;
};

} // namespace

class LinuxTimers::Schedule {
public:
    Schedule()
        : timer_(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC))
    {
        if (!timer_.isOpen()) {
            std::perror("timerfd_create");
            std::abort();
        }
    }

    [[nodiscard]] int fd() const noexcept { return timer_.get(); }

    std::shared_ptr<Entry> add(Nanoseconds delay, Nanoseconds interval, Task task)
    {
        auto entry = std::make_shared<Entry>();
        entry->task = std::move(task);
        entry->interval = interval;
        insert(entry, now() + delay);
        arm();
        return entry;
    }

    void cancel(Entry& entry)
    {
        entry.isCancelled = true;
        waiting_.erase(entry.turn);
        arm();
    }

    void runDue()
    {
        std::uint64_t expirations = 0;
        if (::read(timer_.get(), &expirations, sizeof(expirations)) > 0) {
            armedFor_ = kDisarmed;
        }
        const Nanoseconds start = now();
        const std::uint64_t end = nextSequence_; // timers that a call adds are not due before the next turn
        while (!waiting_.empty()) {
            const Turn turn = waiting_.begin()->first;
            if (turn.due > start || turn.sequence >= end) {
                break;
            }
            const std::shared_ptr<Entry> entry = waiting_.begin()->second;
            waiting_.erase(waiting_.begin());
            arm(); // for an event loop nested in the call
            entry->task();
            if (entry->interval != 0 && !entry->isCancelled) {
                insert(entry, following(entry->turn.due, entry->interval));
            }
        }
        arm();
    }

private:
    static constexpr Nanoseconds kDisarmed = 0;

    static Nanoseconds following(Nanoseconds due, Nanoseconds interval) noexcept
    {
        const Nanoseconds missed = std::max<Nanoseconds>(0, (now() - due) / interval);
        return due + (missed + 1) * interval;
    }

    void insert(const std::shared_ptr<Entry>& entry, Nanoseconds due)
    {
        entry->turn = {due, nextSequence_++};
        waiting_.emplace(entry->turn, entry);
    }

    void arm() noexcept
    {
        const Nanoseconds earliest = waiting_.empty() ? kDisarmed : waiting_.begin()->first.due;
        if (earliest == armedFor_) {
            return;
        }
        armedFor_ = earliest;
        itimerspec when{};
        when.it_value.tv_sec = earliest / kPerSecond;
        when.it_value.tv_nsec = earliest % kPerSecond;
        ::timerfd_settime(timer_.get(), TFD_TIMER_ABSTIME, &when, nullptr);
    }

    const FileDescriptor timer_;
    std::map<Turn, std::shared_ptr<Entry>> waiting_;
    std::uint64_t nextSequence_ = 0;
    Nanoseconds armedFor_ = kDisarmed;
};

class LinuxTimers::Token final : public Timer {
public:
    Token(std::weak_ptr<Schedule> schedule, std::shared_ptr<Entry> entry) noexcept
        : schedule_(std::move(schedule))
        , entry_(std::move(entry))
    {}

    Token(const Token&) = delete;
    Token& operator=(const Token&) = delete;

    ~Token() override
    {
        if (const auto schedule = schedule_.lock()) {
            schedule->cancel(*entry_);
        }
    }

private:
    std::weak_ptr<Schedule> schedule_;
    std::shared_ptr<Entry> entry_;
};

LinuxTimers::LinuxTimers()
    : schedule_(std::make_shared<Schedule>())
{}

std::unique_ptr<Timer> LinuxTimers::scheduleRepeating(double interval, Task tick)
{
    const Nanoseconds length = std::max(nanosecondsOf(interval), kShortestInterval);
    return std::make_unique<Token>(schedule_, schedule_->add(length, length, std::move(tick)));
}

std::unique_ptr<Timer> LinuxTimers::scheduleOnce(double delay, Task fire)
{
    return std::make_unique<Token>(schedule_, schedule_->add(nanosecondsOf(delay), 0, std::move(fire)));
}

void LinuxTimers::callAfter(double delay, Task fire)
{
    schedule_->add(nanosecondsOf(delay), 0, std::move(fire));
}

int LinuxTimers::fd() const noexcept
{
    return schedule_->fd();
}

void LinuxTimers::runDue()
{
    const auto keepAlive = schedule_; // a call may destroy this object
    keepAlive->runDue();
}

} // namespace tocca::platform::linux

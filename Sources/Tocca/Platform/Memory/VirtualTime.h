#pragma once

#include "Platform/Clock.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace tocca::platform::memory {

/// The clock and the agenda of a machine whose time only moves when it is told to.
///
/// Units: seconds. Threads: one; the roles of several are played in turn.
class VirtualTime : public Clock {
public:
    /// Large and odd, so that code which needs time 0 or a round start cannot hide.
    static constexpr double kStart = 86'461.017;

    [[nodiscard]] double now() const noexcept override { return now_; }

    /// Whether a call scheduled by `at` is still wanted; it is asked when the call falls due.
    using Wanted = std::weak_ptr<const void>;

    /// Schedules `call` for `time`; calls due at one instant run in scheduling order. An expired `wanted` cancels.
    void at(double time, Wanted wanted, std::function<void()> call);

    /// Adds a source of work that is due at once; `runOne` runs one piece and returns false when there was none.
    void addWorker(std::function<bool()> runOne);

    /// Runs everything due at this instant, and what that makes due, until nothing is left.
    void settle();

    /// Moves time on by `seconds`, running each piece at its own instant, and settles at the end.
    void advance(double seconds);

private:
    struct Entry {
        double time;
        std::uint64_t sequence;
        Wanted wanted;
        std::function<void()> call;
    };

    double now_ = kStart;
    std::uint64_t sequence_ = 0;
    std::vector<Entry> entries_;
    std::vector<std::function<bool()>> workers_;
};

} // namespace tocca::platform::memory

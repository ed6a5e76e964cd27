#include "Platform/Memory/VirtualTime.h"

#include <algorithm>
#include <utility>

namespace tocca::platform::memory {

void VirtualTime::at(double time, Wanted wanted, std::function<void()> call)
{
    entries_.push_back({time, sequence_++, std::move(wanted), std::move(call)});
}

void VirtualTime::addWorker(std::function<bool()> runOne)
{
    workers_.push_back(std::move(runOne));
}

void VirtualTime::settle()
{
    bool ranAny = true;
    while (ranAny) {
        ranAny = false;
        for (std::size_t i = 0; i < workers_.size(); ++i) {
            while (workers_[i]()) {
                ranAny = true;
            }
        }
    }
}

void VirtualTime::advance(double seconds)
{
    // A hair of slack lets steps like 0.1 + 0.2 reach what was scheduled for 0.3.
    constexpr double kSlack = 1e-9;
    const double end = now_ + seconds;
    settle();
    for (;;) {
        const auto next =
            std::min_element(entries_.begin(), entries_.end(), [](const Entry& a, const Entry& b) {
                return a.time != b.time ? a.time < b.time : a.sequence < b.sequence;
            });
        if (next == entries_.end() || next->time > end + kSlack) {
            break;
        }
        const Entry entry = std::move(*next);
        entries_.erase(next);
        now_ = std::max(now_, entry.time);
        if (const auto wanted = entry.wanted.lock()) {
            entry.call();
        }
        settle();
    }
    now_ = std::max(now_, end);
}

} // namespace tocca::platform::memory

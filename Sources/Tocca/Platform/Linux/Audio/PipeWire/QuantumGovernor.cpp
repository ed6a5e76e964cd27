#include "Platform/Linux/Audio/PipeWire/QuantumGovernor.h"

#include <algorithm>
#include <limits>

namespace tocca::platform::linux {

namespace {

constexpr double kNever = -std::numeric_limits<double>::infinity();

} // namespace

QuantumGovernor::QuantumGovernor(int smallest, int largest) noexcept
    : smallest_(smallest)
    , largest_(largest)
    , quantum_(smallest)
    , ignoredUntil_(kNever)
    , changedAt_(kNever)
    , shrunkAt_(kNever)
{
    latest_.fill(kNever);
}

bool QuantumGovernor::observe(std::uint64_t dropOuts, double now) noexcept
{
    const std::uint64_t fresh = std::min<std::uint64_t>(dropOuts - seen_, latest_.size());
    seen_ = dropOuts;
    if (now < ignoredUntil_) {
        return false;
    }
    for (std::uint64_t i = 0; i < fresh; ++i) {
        std::rotate(latest_.begin(), latest_.begin() + 1, latest_.end());
        latest_.back() = now;
    }
    if (fresh == 0 || now - latest_.front() > kWindow || quantum_ >= largest_) {
        return false;
    }
    if (now - shrunkAt_ < kCalm) {
        smallest_ = quantum_ * 2;
    }
    change(std::min(quantum_ * 2, largest_), now);
    return true;
}

bool QuantumGovernor::rest(double now) noexcept
{
    if (quantum_ <= smallest_ || now - std::max(latest_.back(), changedAt_) < kCalm) {
        return false;
    }
    change(quantum_ / 2, now);
    shrunkAt_ = now;
    return true;
}

void QuantumGovernor::change(int quantum, double now) noexcept
{
    quantum_ = quantum;
    changedAt_ = now;
    disturb(now);
    latest_.fill(kNever);
}

} // namespace tocca::platform::linux

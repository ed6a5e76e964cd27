#include "Platform/Linux/Audio/OutputMeter.h"

#include "Support/ThreadRole.h"

namespace tocca::platform::linux {

void OutputMeter::render(player::RenderSource& source, std::span<float> frames,
                         const player::RenderCycle& cycle) noexcept
{
    const ThreadRoleScope role(ThreadRole::Render);
    source.render(frames, cycle);
    quantum_.store(cycle.quantum, std::memory_order_relaxed);
    cycles_.fetch_add(1, std::memory_order_relaxed);
}

void OutputMeter::countCycle(std::uint64_t position, std::uint64_t duration) noexcept
{
    if (!restarts_.exchange(false, std::memory_order_relaxed) && duration > 0) {
        // Positions of resampled streams are rounded, hence the half cycle of tolerance.
        const auto ahead = static_cast<std::int64_t>(position - expectedPosition_ + duration / 2);
        if (ahead >= static_cast<std::int64_t>(duration)) {
            dropOuts_.fetch_add(1, std::memory_order_relaxed);
            missedCycles_.fetch_add(static_cast<std::uint64_t>(ahead) / duration, std::memory_order_relaxed);
        }
    }
    expectedPosition_ = position + duration;
}

void OutputMeter::countDropOut() noexcept
{
    dropOuts_.fetch_add(1, std::memory_order_relaxed);
    missedCycles_.fetch_add(1, std::memory_order_relaxed);
}

} // namespace tocca::platform::linux

#include "Platform/Linux/Audio/OutputMeter.h"

#include "Support/ThreadRole.h"

#include <ctime>
#if defined(__SSE2__)
#include <immintrin.h>
#endif

namespace tocca::platform::linux {

namespace {

/// Flushes denormal numbers to zero for a scope.
class FlushDenormals {
public:
#if defined(__SSE2__)
    FlushDenormals() noexcept
        : previous_(_mm_getcsr())
    {
        _mm_setcsr(previous_ | kFlushToZero | kDenormalsAreZero);
    }

    ~FlushDenormals()
    {
        _mm_setcsr(previous_);
    }

private:
    static constexpr unsigned kFlushToZero = 0x8000;
    static constexpr unsigned kDenormalsAreZero = 0x0040;
    const unsigned previous_;
#elif defined(__aarch64__)
    FlushDenormals() noexcept
    {
        asm volatile("mrs %0, fpcr" : "=r"(previous_));
        asm volatile("msr fpcr, %0" : : "r"(previous_ | kFlushToZero));
    }

    ~FlushDenormals()
    {
        asm volatile("msr fpcr, %0" : : "r"(previous_));
    }

private:
    static constexpr std::uint64_t kFlushToZero = std::uint64_t{1} << 24;
    std::uint64_t previous_ = 0;
#else
    FlushDenormals() noexcept
    {}

    ~FlushDenormals()
    {}
#endif

public:
    FlushDenormals(const FlushDenormals&) = delete;
    FlushDenormals& operator=(const FlushDenormals&) = delete;
};

} // namespace

double monotonicSeconds() noexcept
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

void OutputMeter::render(player::RenderSource& source, std::span<float> frames,
                         const player::RenderCycle& cycle) noexcept
{
    const ThreadRoleScope role(ThreadRole::Render);
    const FlushDenormals flush;
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

void OutputMeter::restart() noexcept
{
    restarts_.store(true, std::memory_order_relaxed);
}

void OutputMeter::setSampleRate(double sampleRate) noexcept
{
    sampleRate_.store(sampleRate, std::memory_order_relaxed);
}

} // namespace tocca::platform::linux

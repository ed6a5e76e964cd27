#pragma once

#include "Player/RenderSource.h"
#include "Support/Realtime.h"

#include <atomic>
#include <cstdint>
#include <span>

namespace tocca::platform::linux {

/// Lets a sound server render, and counts cycles and drop-outs: the watchdog and the choice of the quantum go by these numbers.
///
/// Threads: what renders and counts: render. Everything else: any.
/// Real-time: every member is wait-free.
class OutputMeter {
public:
    /// Renders one block, with the calling thread marked as the render thread meanwhile.
    void render(player::RenderSource& source, std::span<float> frames,
                const player::RenderCycle& cycle) noexcept REALTIME;

    /// Counts the cycles between the end of the last one and `position`, where this one begins, as missed. Units: frames of the server's clock. Threads: render.
    void countCycle(std::uint64_t position, std::uint64_t duration) noexcept REALTIME;

    /// Counts one drop-out that the server itself has reported.
    void countDropOut() noexcept REALTIME;

    /// Begins a new series: nothing before the next cycle counts as missed.
    void restart() noexcept { restarts_.store(true, std::memory_order_relaxed); }

    void setSampleRate(double sampleRate) noexcept
    {
        sampleRate_.store(sampleRate, std::memory_order_relaxed);
    }

    [[nodiscard]] double sampleRate() const noexcept { return sampleRate_.load(std::memory_order_relaxed); }

    [[nodiscard]] int quantum() const noexcept { return quantum_.load(std::memory_order_relaxed); }

    [[nodiscard]] std::uint64_t cycles() const noexcept { return cycles_.load(std::memory_order_relaxed); }

    /// How often the sound was interrupted, each time counting once.
    [[nodiscard]] std::uint64_t dropOuts() const noexcept
    {
        return dropOuts_.load(std::memory_order_relaxed);
    }

    [[nodiscard]] std::uint64_t missedCycles() const noexcept
    {
        return missedCycles_.load(std::memory_order_relaxed);
    }

private:
    std::atomic<double> sampleRate_{48000.0};    // control -> any
    std::atomic<int> quantum_{0};                // render -> any
    std::atomic<std::uint64_t> cycles_{0};       // render -> any
    std::atomic<std::uint64_t> dropOuts_{0};     // render -> any
    std::atomic<std::uint64_t> missedCycles_{0}; // render -> any
    std::atomic<bool> restarts_{true};           // control -> render
    std::uint64_t expectedPosition_ = 0;         // render
};

} // namespace tocca::platform::linux

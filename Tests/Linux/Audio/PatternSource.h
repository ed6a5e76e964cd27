#pragma once

#include "Platform/Linux/System/LinuxClock.h"
#include "Player/RenderSource.h"
#include "Support/ThreadRole.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

#include <sched.h>

namespace tocca::platform::linux {

/// Renders a saw tooth that tells every frame from its neighbours and left from right, and remembers its cycles.
class PatternSource final : public player::RenderSource {
public:
    struct Rendered {
        player::RenderCycle cycle;
        int frames = 0;
    };

    void render(std::span<float> frames, const player::RenderCycle& cycle) noexcept override
    {
        isRendering_ = true;
        const double now = monotonicSeconds();
        for (std::size_t i = 0; i + 1 < frames.size(); i += 2) {
            frames[i] = static_cast<float>(frame_++ % kPeriod) * kStep;
            frames[i + 1] = kRight * frames[i];
        }
        const std::size_t count = count_.load(std::memory_order_relaxed);
        if (count < cycles_.size()) {
            cycles_[count] = {.cycle = cycle, .frames = static_cast<int>(frames.size() / 2)};
            count_.store(count + 1, std::memory_order_release);
        }
        role_ = threadRole();
        schedulingPolicy_ = sched_getscheduler(0);
        while (cycle.quantum < slowBelow_ && monotonicSeconds() < now + kSlowness) {
        }
        isRendering_ = false;
    }

    /// The first few thousand cycles.
    [[nodiscard]] std::span<const Rendered> cycles() const
    {
        return std::span(cycles_).first(count_.load(std::memory_order_acquire));
    }

    [[nodiscard]] ThreadRole role() const { return role_; }

    [[nodiscard]] int schedulingPolicy() const { return schedulingPolicy_; }

    [[nodiscard]] bool isRendering() const { return isRendering_; }

    /// Makes every cycle of less than `quantum` frames take longer than 64 frames last.
    void slowDownBelow(int quantum) { slowBelow_ = quantum; }

    /// The longest part of a recording, in frames, that is this source's sound without a missing or altered frame.
    static std::size_t longestRun(std::span<const float> stereo)
    {
        std::size_t longest = 0;
        std::size_t run = 0;
        long previous = -1;
        for (std::size_t i = 0; i + 1 < stereo.size(); i += 2) {
            const long place = std::lround(stereo[i] / kStep);
            const bool isOurs = std::abs(stereo[i] - static_cast<float>(place) * kStep) < kTolerance &&
                                std::abs(stereo[i + 1] - kRight * stereo[i]) < kTolerance;
            const bool isNext = run == 0 || place == (previous + 1) % kPeriod;
            run = !isOurs ? 0 : isNext ? run + 1 : 1;
            previous = place;
            longest = std::max(longest, run);
        }
        return longest;
    }

private:
    static constexpr int kPeriod = 1000;
    static constexpr float kStep = 0.0005F;
    static constexpr float kRight = -0.5F;
    static constexpr float kTolerance = 0.0001F; // a sink may keep 16 bits
    static constexpr double kSlowness = 0.002;   // seconds

    std::array<Rendered, 4096> cycles_{};
    std::atomic<std::size_t> count_{0};
    std::atomic<ThreadRole> role_{ThreadRole::None};
    std::atomic<int> schedulingPolicy_{-1};
    std::atomic<int> slowBelow_{0};
    std::atomic<bool> isRendering_{false};
    std::uint64_t frame_ = 0;
};

} // namespace tocca::platform::linux

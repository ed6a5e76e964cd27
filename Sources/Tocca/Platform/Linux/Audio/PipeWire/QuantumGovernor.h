#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tocca::platform::linux {

/// Chooses how many frames at a time to ask a sound server for: as few as the computer can keep up with.
///
/// It starts at the smallest size and doubles it after more than two drop-outs within ten seconds. It halves the size only while nothing
/// sounds, after ten minutes without a drop-out. A size that fails soon after such a return is never tried again.
/// Units: frames; seconds of one clock; drop-outs as a running total.
/// Threads: one at a time.
class QuantumGovernor {
public:
    QuantumGovernor(int smallest, int largest) noexcept;

    [[nodiscard]] int quantum() const noexcept { return quantum_; }

    /// Takes note of the total of drop-outs so far; true when `quantum` has grown.
    bool observe(std::uint64_t dropOuts, double now) noexcept;

    /// Ignores drop-outs in the next second, as after a start; a change of size does so too.
    void disturb(double now) noexcept { ignoredUntil_ = now + kSettling; }

    /// Takes note that nothing sounds; true when `quantum` has shrunk.
    bool rest(double now) noexcept;

private:
    static constexpr std::size_t kTolerated = 2;
    static constexpr double kWindow = 10.0;
    static constexpr double kSettling = 1.0;
    static constexpr double kCalm = 600.0;

    void change(int quantum, double now) noexcept;

    int smallest_;
    const int largest_;
    int quantum_;
    std::uint64_t seen_ = 0;
    std::array<double, kTolerated + 1> latest_; // times of the last drop-outs, oldest first
    double ignoredUntil_;
    double changedAt_;
    double shrunkAt_;
};

} // namespace tocca::platform::linux

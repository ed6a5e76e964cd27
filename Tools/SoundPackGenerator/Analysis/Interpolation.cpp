#include "Analysis/Interpolation.h"

#include <array>
#include <cmath>
#include <numbers>

namespace tocca::soundpack {

namespace {

constexpr std::size_t kTaps = 16;
constexpr std::size_t kBefore = kTaps / 2 - 1;
using Kernel = std::array<double, kTaps>;
using Kernels = std::array<Kernel, kInterpolationSteps>;

Kernels designKernels()
{
    Kernels kernels{};
    for (std::size_t step = 0; step < kInterpolationSteps; ++step) {
        for (std::size_t i = 0; i < kTaps; ++i) {
            const double offset = static_cast<double>(i) - static_cast<double>(kBefore);
            const double x = offset - static_cast<double>(step) / kInterpolationSteps;
            const double angle = std::numbers::pi * x;
            const double sinc = x == 0 ? 1 : std::sin(angle) / angle;
            kernels.at(step).at(i) = sinc * std::pow(std::cos(angle / kTaps), 2);
        }
    }
    return kernels;
}

} // namespace

double between(const std::vector<double>& signal, std::size_t index, std::size_t step)
{
    static const Kernels kernels = designKernels();
    double sum = 0;
    for (std::size_t i = 0; i < kTaps; ++i) {
        const std::size_t at = index + i;
        if (at >= kBefore && at - kBefore < signal.size()) {
            sum += kernels[step][i] * signal[at - kBefore];
        }
    }
    return sum;
}

std::vector<double> atRate(const std::vector<double>& sound, double rate)
{
    std::vector<double> played(static_cast<std::size_t>(static_cast<double>(sound.size()) / rate));
    for (std::size_t n = 0; n < played.size(); ++n) {
        const auto steps = static_cast<std::size_t>(static_cast<double>(n) * rate * kInterpolationSteps);
        played[n] = between(sound, steps / kInterpolationSteps, steps % kInterpolationSteps);
    }
    return played;
}

} // namespace tocca::soundpack

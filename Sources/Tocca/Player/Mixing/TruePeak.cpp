#include "Player/Mixing/TruePeak.h"

#include "Player/Mixing/Four.h"

#include <algorithm>
#include <cmath>

namespace tocca::player {

namespace {

// Gentle enough to be true to peaks up to 20 kHz, where they rise highest between samples.
constexpr double kGentleBeta = 4.0;

} // namespace

TruePeak::TruePeak() noexcept
{
    for (std::size_t phase = 0; phase < kPhases; ++phase) {
        const double position = static_cast<double>(phase + 1) / static_cast<double>(kPhases + 1);
        const auto weights = sincWeights(position, 1.0, kGentleBeta);
        for (std::size_t i = 0; i < weights_[phase].size(); ++i) {
            weights_[phase][i] = static_cast<float>(weights[i / 2]);
        }
    }
}

float TruePeak::between(const float* frame) const noexcept
{
    const float* const first = frame - 2 * kFramesBefore;
    float peak = 0.0F;
    for (const auto& weights : weights_) {
        Four sum{};
        for (std::size_t i = 0; i < weights.size(); i += 4) {
            sum += load(first + i) * load(weights.data() + i);
        }
        peak = std::max({peak, std::abs(sum[0] + sum[2]), std::abs(sum[1] + sum[3])});
    }
    return peak;
}

} // namespace tocca::player

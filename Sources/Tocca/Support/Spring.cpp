#include "Support/Spring.h"

#include <cmath>
#include <numbers>

namespace tocca {

void Spring::retarget(double target, const SpringParameters& parameters, double now) noexcept
{
    const State state = stateAt(now);
    start_ = {target_ + state.offset - target, state.velocity};
    startTime_ = now;
    target_ = target;
    parameters_ = parameters;
}

void Spring::snapTo(double value) noexcept
{
    target_ = value;
    start_ = {};
}

bool Spring::isSettledAt(double now, double epsilon) const noexcept
{
    const State state = stateAt(now);
    return std::abs(state.offset) < epsilon && std::abs(state.velocity) < 10 * epsilon;
}

Spring::State Spring::stateAt(double now) const noexcept
{
    const double t = now - startTime_;
    const double omega = 2 * std::numbers::pi / parameters_.response;
    const double zeta = parameters_.dampingFraction;
    const double decay = std::exp(-zeta * omega * t);
    const double y0 = start_.offset;
    const double slope = start_.velocity + zeta * omega * y0;
    if (zeta == 1) {
        return {decay * (y0 + slope * t), decay * (slope - omega * (y0 + slope * t))};
    }
    const double damped = omega * std::sqrt(1 - zeta * zeta);
    const double c = std::cos(damped * t);
    const double s = std::sin(damped * t);
    const double b = slope / damped;
    return {decay * (y0 * c + b * s),
            decay * ((slope - zeta * omega * y0) * c - (y0 * damped + zeta * omega * b) * s)};
}

} // namespace tocca

#include "Support/Spring.h"

#include <algorithm>
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
    if (start_.offset == 0 && start_.velocity == 0) {
        return {};
    }
    const double t = std::max(now - startTime_, 0.0);
    const double omega = 2 * std::numbers::pi / parameters_.response;
    const double zeta = parameters_.dampingFraction;
    const double y0 = start_.offset;
    const double v0 = start_.velocity;
    const double decay = std::exp(-zeta * omega * t);

    if (zeta < 1) {
        const double damped = omega * std::sqrt(1 - zeta * zeta);
        const double c = std::cos(damped * t);
        const double s = std::sin(damped * t);
        const double b = (v0 + zeta * omega * y0) / damped;
        return {decay * (y0 * c + b * s),
                decay * ((b * damped - zeta * omega * y0) * c - (y0 * damped + zeta * omega * b) * s)};
    }
    if (zeta == 1) {
        const double b = v0 + omega * y0;
        return {decay * (y0 + b * t), decay * (b - omega * (y0 + b * t))};
    }
    const double root = omega * std::sqrt(zeta * zeta - 1);
    const double fast = -zeta * omega - root;
    const double slow = -zeta * omega + root;
    const double ofFast = (v0 - slow * y0) / (fast - slow);
    const double ofSlow = y0 - ofFast;
    return {ofFast * std::exp(fast * t) + ofSlow * std::exp(slow * t),
            ofFast * fast * std::exp(fast * t) + ofSlow * slow * std::exp(slow * t)};
}

} // namespace tocca

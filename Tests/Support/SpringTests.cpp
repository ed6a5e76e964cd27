#include "Support/Spring.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace tocca {
namespace {

/// The same oscillator in small steps (fourth order), independent of the closed form.
struct SteppedSpring {
    double offset;
    double velocity;

    void advance(double seconds, const SpringParameters& parameters)
    {
        constexpr int kSteps = 2000;
        const double omega = 2 * std::numbers::pi / parameters.response;
        const auto acceleration = [&](double y, double v) {
            return -2 * parameters.dampingFraction * omega * v - omega * omega * y;
        };
        const double h = seconds / kSteps;
        for (int i = 0; i < kSteps; ++i) {
            const double a1 = acceleration(offset, velocity);
            const double v2 = velocity + h / 2 * a1;
            const double a2 = acceleration(offset + h / 2 * velocity, v2);
            const double v3 = velocity + h / 2 * a2;
            const double a3 = acceleration(offset + h / 2 * v2, v3);
            const double v4 = velocity + h * a3;
            const double a4 = acceleration(offset + h * v3, v4);
            offset += h / 6 * (velocity + 2 * v2 + 2 * v3 + v4);
            velocity += h / 6 * (a1 + 2 * a2 + 2 * a3 + a4);
        }
    }
};

TEST(Spring, MovesLikeADampedOscillatorAlsoWhenItIsRetargetedOnTheWay)
{
    for (const double damping : {0.3, 0.55, 0.72, 0.85, 1.0}) {
        SCOPED_TRACE(damping);
        const SpringParameters first{.response = 0.28, .dampingFraction = damping};
        const SpringParameters second{.response = 0.45, .dampingFraction = 0.85};
        Spring spring(3.0);
        SteppedSpring stepped{.offset = 3.0 - 10.0, .velocity = 0.0};
        double now = 1000.7;
        spring.retarget(10.0, first, now);
        for (int i = 0; i < 6; ++i) {
            EXPECT_NEAR(spring.valueAt(now), 10.0 + stepped.offset, 1e-6);
            now += 0.021;
            stepped.advance(0.021, first);
        }
        spring.retarget(-2.0, second, now); // at some speed, which it must keep
        stepped.offset += 10.0 + 2.0;
        for (int i = 0; i < 20; ++i) {
            EXPECT_NEAR(spring.valueAt(now), -2.0 + stepped.offset, 1e-6);
            now += 0.021;
            stepped.advance(0.021, second);
        }
    }
}

TEST(Spring, OvershootsByItsDampingAndComesBackAfterItsPeriod)
{
    constexpr double kDamping = 0.5;
    const double damped = std::sqrt(1 - kDamping * kDamping);
    Spring spring(0.0);
    spring.retarget(1.0, {.response = 2.0, .dampingFraction = kDamping}, 50.0);
    const double halfPeriod = 1.0 / damped; // of the damped oscillation, at whose ends the spring turns
    EXPECT_NEAR(spring.valueAt(50.0 + halfPeriod), 1.0 + std::exp(-std::numbers::pi * kDamping / damped),
                1e-9);
    EXPECT_NEAR(spring.valueAt(50.0 + 2 * halfPeriod),
                1.0 - std::exp(-2 * std::numbers::pi * kDamping / damped), 1e-9);
}

TEST(Spring, IsSettledOnlyWhenItIsThereAndStill)
{
    Spring spring(0.0);
    EXPECT_TRUE(spring.isSettledAt(7.0, 0.01));
    spring.retarget(1.0, {.response = 0.5, .dampingFraction = 0.3}, 7.0);
    EXPECT_FALSE(spring.isSettledAt(7.0, 0.01));
    double crossing = 7.0;
    while (spring.valueAt(crossing) < 1.0) {
        crossing += 1e-5;
    }
    EXPECT_FALSE(spring.isSettledAt(crossing, 0.01)) << "it is there, and rushes through";
    EXPECT_TRUE(spring.isSettledAt(12.0, 0.01));

    spring.snapTo(4.0);
    EXPECT_EQ(spring.valueAt(12.0), 4.0);
    EXPECT_TRUE(spring.isSettledAt(12.0, 0.01));
}

} // namespace
} // namespace tocca

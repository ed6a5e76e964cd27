#pragma once

namespace tocca {

/// How a spring moves. Units: `response` in seconds, the period it would have undamped; `dampingFraction` is 0…1, 1 is critical.
struct SpringParameters {
    double response = 0.5;
    double dampingFraction = 1;

    bool operator==(const SpringParameters&) const = default;
};

/// A damped spring of unit mass in closed form, so that its value at an instant does not depend on how often it is asked.
///
/// Units: seconds; `value` in the unit of the targets.
/// Threads: one at a time.
/// Source: the solution of y″ + 2ζω y′ + ω² y = 0 with ω = 2π / response, for y = value − target.
class Spring {
public:
    explicit Spring(double value) noexcept
        : target_(value)
    {}

    /// Heads for `target` from where the spring is at `now`, keeping its velocity. Order: `now` never decreases.
    void retarget(double target, const SpringParameters& parameters, double now) noexcept;

    /// Is at `value` at once, at rest.
    void snapTo(double value) noexcept;

    [[nodiscard]] double valueAt(double now) const noexcept { return target_ + stateAt(now).offset; }

    [[nodiscard]] double target() const noexcept { return target_; }

    /// Whether the value is within `epsilon` of the target and as good as still: less than 10 `epsilon` a second.
    [[nodiscard]] bool isSettledAt(double now, double epsilon) const noexcept;

private:
    struct State {
        double offset = 0;
        double velocity = 0;
    };

    [[nodiscard]] State stateAt(double now) const noexcept;

    double target_;
    State start_; // at start time
    double startTime_ = 0;
    SpringParameters parameters_;
};

} // namespace tocca

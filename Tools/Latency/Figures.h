#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tocca::latency {

/// How a set of durations is spread. Units: seconds.
struct Spread {
    double p5 = 0.0;
    double median = 0.0;
    double p95 = 0.0;
    double p99 = 0.0;
    double most = 0.0;
};

/// Errors: all zero for no durations.
[[nodiscard]] Spread spreadOf(std::vector<double> durations);

/// What one series of strokes showed. Units: seconds.
struct Figures {
    std::string condition;
    int strokes = 0;
    int quantum = 0;                   ///< frames, at the end
    std::vector<double> toFirstSample; ///< from a key's event to the call that wrote its first sample
    std::vector<double> toMonitor;     ///< from the synthetic key to its first sample in the sink's monitor
    std::vector<double> intervalError; ///< by which two strokes sounded further apart than they were typed
    int missedStrokes = 0;
    int spuriousSounds = 0;
    std::uint64_t missedCycles = 0; ///< of the program's stream
    std::uint64_t frames = 0;       ///< painted by the overlays
    double mainThreadWork = 0.0;
    double duration = 0.0; ///< of the typing

    /// Adds a further series of the same condition.
    Figures& operator+=(const Figures& other);
};

/// The table for people, in Markdown.
[[nodiscard]] std::string tableOf(const std::vector<Figures>& all);

} // namespace tocca::latency

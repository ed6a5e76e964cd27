#include "Figures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace tocca::latency {

namespace {

double quantile(const std::vector<double>& sorted, double share)
{
    // The smallest value that at least this share of all values does not exceed.
    const double rank = std::ceil(share * static_cast<double>(sorted.size()));
    return sorted[static_cast<std::size_t>(std::max(rank, 1.0)) - 1];
}

std::string number(double value, int decimals = 1)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    return text.data();
}

std::string milliseconds(double seconds)
{
    return number(seconds * 1000.0, 2);
}

std::string row(const std::string& condition, const std::string& what, const std::vector<double>& durations)
{
    const Spread spread = spreadOf(durations);
    return "| " + condition + " | " + what + " | " + milliseconds(spread.median) + " | " +
           milliseconds(spread.p95) + " | " + milliseconds(spread.p99) + " | " + milliseconds(spread.most) +
           " |\n";
}

std::string summary(const Figures& figures)
{
    const Spread errors = spreadOf(figures.intervalError);
    return figures.condition + ": " + std::to_string(figures.strokes) + " strokes at " +
           std::to_string(figures.quantum) + " frames, jitter " + milliseconds(errors.p95 - errors.p5) +
           " ms, " + std::to_string(figures.missedStrokes) + " strokes missed, " +
           std::to_string(figures.spuriousSounds) + " sounds too many, " +
           std::to_string(figures.missedCycles) + " cycles missed; main thread " +
           number(100.0 * figures.mainThreadWork / figures.duration) + " % of a core, " +
           number(static_cast<double>(figures.frames) / figures.duration) +
           " frames a second in both overlays.\n";
}

void append(std::vector<double>& to, const std::vector<double>& more)
{
    to.insert(to.end(), more.begin(), more.end());
}

} // namespace

Figures& Figures::operator+=(const Figures& other)
{
    condition = other.condition;
    quantum = other.quantum;
    strokes += other.strokes;
    append(toFirstSample, other.toFirstSample);
    append(toMonitor, other.toMonitor);
    append(intervalError, other.intervalError);
    missedStrokes += other.missedStrokes;
    spuriousSounds += other.spuriousSounds;
    missedCycles += other.missedCycles;
    frames += other.frames;
    mainThreadWork += other.mainThreadWork;
    duration += other.duration;
    return *this;
}

Spread spreadOf(std::vector<double> durations)
{
    if (durations.empty()) {
        return {};
    }
    std::sort(durations.begin(), durations.end());
    return {.p5 = quantile(durations, 0.05),
            .median = quantile(durations, 0.50),
            .p95 = quantile(durations, 0.95),
            .p99 = quantile(durations, 0.99),
            .most = durations.back()};
}

std::string tableOf(const std::vector<Figures>& all)
{
    std::string text = "| computer | from → to, milliseconds | median | p95 | p99 | max |\n"
                       "|---|---|---|---|---|---|\n";
    for (const Figures& figures : all) {
        text += row(figures.condition, "key event → first sample written", figures.toFirstSample);
        text += row(figures.condition, "synthetic key sent → first sample in the sink's monitor",
                    figures.toMonitor);
    }
    text += "\nJitter is p95 − p5 of how much further apart two strokes sound than they were typed.\n\n";
    for (const Figures& figures : all) {
        text += "- " + summary(figures);
    }
    return text;
}

} // namespace tocca::latency

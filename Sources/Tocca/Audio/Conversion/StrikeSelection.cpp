#include "Audio/Conversion/StrikeSelection.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <numeric>
#include <set>
#include <utility>

namespace tocca::audio {

namespace {

constexpr double kFarthestLu = 12.0;
constexpr double kLongestStrike = 0.6;

double medianLoudness(const std::vector<HeardTake>& takes)
{
    std::vector<double> values;
    values.reserve(takes.size());
    for (const HeardTake& heard : takes) {
        values.push_back(heard.strike.lufs);
    }
    return medianOf(std::move(values));
}

/// Takes out what `isOut` says, unless nothing would be left.
void leaveOut(std::vector<HeardTake>& takes, const std::function<bool(const HeardTake&)>& isOut,
              const char* reason, std::vector<std::string>& remarks)
{
    std::vector<bool> outs;
    outs.reserve(takes.size());
    for (const HeardTake& heard : takes) {
        outs.push_back(isOut(heard));
    }
    if (std::find(outs.begin(), outs.end(), false) == outs.end()) {
        return;
    }
    std::vector<HeardTake> rest;
    for (std::size_t i = 0; i < takes.size(); ++i) {
        if (outs[i]) {
            remarks.push_back(takes[i].take.key + ": " + reason);
        } else {
            rest.push_back(std::move(takes[i]));
        }
    }
    takes = std::move(rest);
}

} // namespace

double medianOf(std::vector<double> values)
{
    if (values.empty()) {
        return 0.0;
    }
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

std::vector<HeardTake> alike(std::vector<HeardTake> takes, std::size_t most,
                             std::vector<std::string>& remarks)
{
    std::set<std::uint64_t> heardBefore;
    leaveOut(
        takes, [&](const HeardTake& heard) { return !heardBefore.insert(heard.strike.content).second; },
        "it sounds the same as another key", remarks);
    leaveOut(
        takes, [](const HeardTake& heard) { return heard.strike.seconds > kLongestStrike; },
        "it lasts longer than 0.6 s", remarks);
    const double middle = medianLoudness(takes);
    const auto distance = [middle](const HeardTake& heard) { return std::abs(heard.strike.lufs - middle); };
    leaveOut(
        takes, [&](const HeardTake& heard) { return distance(heard) > kFarthestLu; },
        "it is more than 12 LU louder or softer than the others", remarks);
    if (takes.size() > most) {
        std::vector<std::size_t> order(takes.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
            return distance(takes[a]) < distance(takes[b]);
        });
        const std::set<std::size_t> nearest(order.begin(), order.begin() + static_cast<std::ptrdiff_t>(most));
        std::size_t index = 0;
        leaveOut(
            takes, [&](const HeardTake&) { return !nearest.contains(index++); },
            "enough others are nearer to the middle", remarks);
    }
    return takes;
}

} // namespace tocca::audio

#include "Acceptance/SlotSummary.h"

#include "Analysis/Median.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace tocca::soundpack {

namespace {

std::vector<double> valuesOf(const SlotRecordings& slot,
                             const std::function<double(const Recording&)>& quantity)
{
    std::vector<double> values;
    std::ranges::transform(slot.variants, std::back_inserter(values), quantity);
    return values;
}

} // namespace

double medianOf(const SlotRecordings& slot, const std::function<double(const Recording&)>& quantity)
{
    return median(valuesOf(slot, quantity));
}

double maximumOf(const SlotRecordings& slot, const std::function<double(const Recording&)>& quantity)
{
    return std::ranges::max(valuesOf(slot, quantity));
}

double medianLufs(const SlotRecordings& slot)
{
    return medianOf(slot, [](const Recording& recording) { return recording.lufs; });
}

double medianCentroidHz(const SlotRecordings& slot)
{
    return medianOf(slot, [](const Recording& recording) { return recording.spectrum.centroidHz; });
}

Spread spreadOf(const SlotRecordings& slot)
{
    const auto centroids = valuesOf(slot, [](const Recording& r) { return r.spectrum.centroidHz; });
    const auto levels = valuesOf(slot, [](const Recording& r) { return r.lufs; });
    const double mean =
        std::accumulate(centroids.begin(), centroids.end(), 0.0) / static_cast<double>(centroids.size());
    const double middle = median(levels);

    Spread spread{.centroid = 0, .lufsFromMedian = 0, .lufsRange = 0, .correlation = 0, .distance = 1e9};
    spread.lufsRange = std::ranges::max(levels) - std::ranges::min(levels);
    for (std::size_t i = 0; i < slot.variants.size(); ++i) {
        spread.centroid = std::max(spread.centroid, std::abs(centroids[i] / mean - 1));
        spread.lufsFromMedian = std::max(spread.lufsFromMedian, std::abs(levels[i] - middle));
        for (std::size_t j = i + 1; j < slot.variants.size(); ++j) {
            const Recording& a = slot.variants[i];
            const Recording& b = slot.variants[j];
            spread.correlation = std::max(spread.correlation, correlation(a.signal, b.signal));
            spread.distance = std::min(spread.distance, distance(a.fingerprint, b.fingerprint));
        }
    }
    return spread;
}

double meanDistance(const SlotRecordings& a, const SlotRecordings& b)
{
    double sum = 0;
    int pairs = 0;
    for (const Recording& one : a.variants) {
        for (const Recording& other : b.variants) {
            if (&one != &other) {
                sum += distance(one.fingerprint, other.fingerprint);
                ++pairs;
            }
        }
    }
    return sum / pairs;
}

} // namespace tocca::soundpack

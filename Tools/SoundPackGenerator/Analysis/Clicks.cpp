#include "Analysis/Clicks.h"

#include "Synthesis/Rates.h"

#include <algorithm>
#include <cmath>

namespace tocca::soundpack {

namespace {

std::size_t sampleAt(std::span<const double> signal, double ms)
{
    const auto sample = static_cast<std::size_t>(std::lround(ms * 1e-3 * kSampleRate));
    return std::min(sample, signal.size());
}

} // namespace

Click loudestClick(std::span<const double> clickEnvelopeDb, TimeSpan span)
{
    const std::size_t first = sampleAt(clickEnvelopeDb, span.fromMs);
    const auto part = clickEnvelopeDb.subspan(first, sampleAt(clickEnvelopeDb, span.toMs) - first);
    const auto loudest = std::ranges::max_element(part);
    const auto at = static_cast<std::size_t>(loudest - part.begin()) + first;
    return {static_cast<double>(at) / kSampleRate * 1e3, *loudest};
}

double valleyBetween(std::span<const double> clickEnvelopeDb, const Click& first, const Click& second)
{
    const std::size_t from = sampleAt(clickEnvelopeDb, first.atMs);
    return std::ranges::min(clickEnvelopeDb.subspan(from, sampleAt(clickEnvelopeDb, second.atMs) - from + 1));
}

} // namespace tocca::soundpack

#include "Acceptance/Recording.h"

#include "Analysis/Decay.h"
#include "Analysis/Envelope.h"
#include "Analysis/Loudness.h"
#include "Analysis/Onset.h"
#include "Model/Decibel.h"
#include "Synthesis/Rates.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <span>

namespace tocca::soundpack {

namespace {

double milliseconds(std::size_t samples)
{
    return static_cast<double>(samples) / kSampleRate * 1e3;
}

std::span<const double> lastMs(std::span<const double> signal, double ms)
{
    return signal.last(std::min(signal.size(), static_cast<std::size_t>(ms * 1e-3 * kSampleRate)));
}

double largestStep(std::span<const double> signal)
{
    double largest = 0;
    for (std::size_t n = 1; n < signal.size(); ++n) {
        largest = std::max(largest, std::abs(signal[n] - signal[n - 1]));
    }
    return largest;
}

double rootMeanSquare(std::span<const double> signal)
{
    const double energy = std::inner_product(signal.begin(), signal.end(), signal.begin(), 0.0);
    return std::sqrt(energy / static_cast<double>(signal.size()));
}

Edges edgesOf(const WavFile& file, const std::vector<double>& signal, std::size_t onset)
{
    constexpr double kSilence = 1e-6; // stands for digital silence, which has no level
    const double mean =
        std::accumulate(signal.begin(), signal.end(), 0.0) / static_cast<double>(signal.size());
    return {
        .onsetMs = milliseconds(onset),
        .firstSoundMs = milliseconds(onsetOf(signal, kFirstSoundShare)),
        .attackMs = attackMs(signal, onset),
        .firstSample = std::abs(file.samples.front()),
        .lastSample = std::abs(file.samples.back()),
        .lastStep = largestStep(lastMs(signal, 18)),
        .lastLevel = decibels(std::max(kSilence, rootMeanSquare(lastMs(signal, 10)))),
        .offsetDb = decibels(std::max(kSilence * kSilence, std::abs(mean))),
    };
}

} // namespace

Recording measure(std::string name, WavFile file)
{
    std::vector<double> signal(file.samples.size());
    std::ranges::transform(file.samples, signal.begin(),
                           [](std::int16_t sample) { return sample / 32768.0; });
    const std::size_t onset = onsetOf(signal);
    const Edges edges = edgesOf(file, signal, onset);
    std::vector<double> clicks = clickEnvelopeDb(signal);
    clicks.erase(clicks.begin(), clicks.begin() + static_cast<std::ptrdiff_t>(onset));
    return {
        .name = std::move(name),
        .file = std::move(file),
        .signal = signal,
        .onset = onset,
        .durationMs = milliseconds(signal.size()),
        .peakDb = decibels(peakOf(signal)),
        .lufs = loudness(signal),
        .edges = edges,
        .spectrum = spectrumOf(signal),
        .tonality = tonality(signal, onset),
        .effectiveBands = effectiveBands(signal),
        .earlyDecayMs = earlyDecayMs(signal),
        .decay20Ms = timeAboveMs(signal, onset, 20),
        .decay40Ms = timeAboveMs(signal, onset, 40),
        .fingerprint = fingerprintOf(signal, onset),
        .clicks = std::move(clicks),
    };
}

const SlotRecordings& PackRecordings::of(const Slot& slot) const
{
    return *std::ranges::find(slots, slot, &SlotRecordings::slot);
}

} // namespace tocca::soundpack

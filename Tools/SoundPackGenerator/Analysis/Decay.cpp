#include "Analysis/Decay.h"

#include "Analysis/Envelope.h"
#include "Analysis/Line.h"
#include "Model/Decibel.h"
#include "Synthesis/Rates.h"

#include <vector>

namespace tocca::soundpack {

double earlyDecayMs(std::span<const double> signal)
{
    const std::size_t start = indexOfMaximum(envelope(signal, 0.5));
    std::vector<double> toCome(signal.size() - start);
    double sum = 0;
    for (std::size_t n = signal.size(); n-- > start;) {
        sum += signal[n] * signal[n];
        toCome[n - start] = sum;
    }
    std::vector<double> seconds;
    std::vector<double> levels;
    for (std::size_t n = 0; n < toCome.size(); ++n) {
        const double db = powerDecibels(toCome[n] / sum + 1e-30);
        if (db <= -1 && db >= -11) {
            seconds.push_back(static_cast<double>(n) / kSampleRate);
            levels.push_back(db);
        }
    }
    return -60 / slopeOf(seconds, levels) * 1e3;
}

double timeAboveMs(std::span<const double> signal, std::size_t onset, double db)
{
    const std::vector<double> level = envelope(signal, 2);
    const double threshold = level[indexOfMaximum(level)] * gain(-db);
    std::size_t last = level.size();
    while (last > onset && level[last - 1] <= threshold) {
        --last;
    }
    return static_cast<double>(last - 1 - onset) / kSampleRate * 1e3;
}

} // namespace tocca::soundpack

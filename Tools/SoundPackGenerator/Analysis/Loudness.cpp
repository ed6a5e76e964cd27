#include "Analysis/Loudness.h"

#include "Support/Loudness.h"
#include "Synthesis/Rates.h"

#include <array>
#include <vector>

namespace tocca::soundpack {

double loudness(std::span<const double> signal)
{
    const std::array channel{std::vector(signal.begin(), signal.end())};
    return tocca::loudness(channel, kSampleRate);
}

} // namespace tocca::soundpack

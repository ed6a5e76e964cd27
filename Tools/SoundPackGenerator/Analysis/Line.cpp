#include "Analysis/Line.h"

#include <numeric>

namespace tocca::soundpack {

double slopeOf(std::span<const double> x, std::span<const double> y)
{
    const auto count = static_cast<double>(x.size());
    const double meanX = std::accumulate(x.begin(), x.end(), 0.0) / count;
    const double meanY = std::accumulate(y.begin(), y.end(), 0.0) / count;
    double product = 0;
    double square = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        product += (x[i] - meanX) * (y[i] - meanY);
        square += (x[i] - meanX) * (x[i] - meanX);
    }
    return product / square;
}

} // namespace tocca::soundpack

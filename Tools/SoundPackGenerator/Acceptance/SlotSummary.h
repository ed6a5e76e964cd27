#pragma once

#include "Acceptance/Recording.h"

#include <array>
#include <functional>
#include <vector>

namespace tocca::soundpack {

/// The median of a quantity over the variants of a slot.
double medianOf(const SlotRecordings& slot, const std::function<double(const Recording&)>& quantity);

/// The largest of a quantity over the variants of a slot.
double maximumOf(const SlotRecordings& slot, const std::function<double(const Recording&)>& quantity);

double medianLufs(const SlotRecordings& slot);
double medianCentroidHz(const SlotRecordings& slot);

/// How the variants of one slot relate to each other.
struct Spread {
    double centroid;       ///< largest deviation from the mean, as a fraction of it
    double lufsFromMedian; ///< largest, LU
    double lufsRange;      ///< LU
    double correlation;    ///< of the two variants most alike
    double distance;       ///< of the two variants most alike, dB
};

Spread spreadOf(const SlotRecordings& slot);

/// Mean distance of every pair of recordings from two slots; of every two variants when both are the same.
double meanDistance(const SlotRecordings& a, const SlotRecordings& b);

} // namespace tocca::soundpack

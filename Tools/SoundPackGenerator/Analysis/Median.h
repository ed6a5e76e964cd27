#pragma once

#include <algorithm>
#include <vector>

namespace tocca::soundpack {

/// The middle value, or the mean of the two middle ones. Must not be empty.
inline double median(std::vector<double> values)
{
    std::ranges::sort(values);
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

} // namespace tocca::soundpack

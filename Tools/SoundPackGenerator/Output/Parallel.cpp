#include "Output/Parallel.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace tocca::soundpack {

void inParallel(std::size_t count, const std::function<void(std::size_t)>& work)
{
    std::atomic<std::size_t> next{0};
    const auto takeTurns = [&] {
        for (std::size_t i = next++; i < count; i = next++) {
            work(i);
        }
    };
    const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    std::vector<std::jthread> helpers;
    for (std::size_t i = 1; i < std::min(cores, count); ++i) {
        helpers.emplace_back(takeTurns);
    }
    takeTurns();
}

} // namespace tocca::soundpack

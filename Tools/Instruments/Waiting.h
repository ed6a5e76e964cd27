#pragma once

#include <chrono>
#include <thread>

namespace tocca::instruments {

/// How long anything may take on a busy computer before it counts as failed.
inline constexpr std::chrono::seconds kPatience{20};

/// Waits until `condition` holds, which it asks every two milliseconds; false when the deadline passes first.
template <class Condition>
[[nodiscard]] bool becomesTrue(const Condition& condition, std::chrono::milliseconds deadline = kPatience)
{
    const auto end = std::chrono::steady_clock::now() + deadline;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

} // namespace tocca::instruments

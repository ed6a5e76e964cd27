#pragma once

#include "Support/Realtime.h"

#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

namespace tocca {

/// A first-in first-out queue of fixed capacity that any thread may push to and pop from.
///
/// Threads: every member: any.
/// Order: the items of one thread come out in the order they went in.
/// Real-time: `tryPush`, `tryPop` and `pushDroppingOldest` never allocate, lock or wait; storage is fixed at construction.
/// Errors: a full queue refuses (`tryPush`) or gives up its oldest item (`pushDroppingOldest`).
/// Source: D. Vyukov, "Bounded MPMC queue", 2010.
template <class T>
class BoundedQueue {
public:
    /// `capacity` is rounded up to a power of two.
    explicit BoundedQueue(std::size_t capacity)
        : mask_(std::bit_ceil(capacity) - 1)
        , cells_(std::make_unique<Cell[]>(mask_ + 1))
    {
        for (std::size_t i = 0; i <= mask_; ++i) {
            cells_[i].turn.store(i, std::memory_order_relaxed);
        }
    }

    /// Moves `item` in unless the queue is full; then leaves it untouched and returns false.
    bool tryPush(T& item) noexcept REALTIME
    {
        std::size_t at = tail_.load(std::memory_order_relaxed);
        for (;;) {
            Cell& cell = cells_[at & mask_];
            const auto lead = static_cast<std::ptrdiff_t>(cell.turn.load(std::memory_order_acquire) - at);
            if (lead == 0) {
                if (tail_.compare_exchange_weak(at, at + 1, std::memory_order_relaxed)) {
                    cell.item = std::move(item);
                    cell.turn.store(at + 1, std::memory_order_release);
                    return true;
                }
            } else if (lead < 0) {
                return false;
            } else {
                at = tail_.load(std::memory_order_relaxed);
            }
        }
    }

    /// Moves the oldest item into `item`, or returns false when there is none.
    bool tryPop(T& item) noexcept REALTIME
    {
        std::size_t at = head_.load(std::memory_order_relaxed);
        for (;;) {
            Cell& cell = cells_[at & mask_];
            const auto lead =
                static_cast<std::ptrdiff_t>(cell.turn.load(std::memory_order_acquire) - (at + 1));
            if (lead == 0) {
                if (head_.compare_exchange_weak(at, at + 1, std::memory_order_relaxed)) {
                    item = std::move(cell.item);
                    cell.item = T();
                    cell.turn.store(at + mask_ + 1, std::memory_order_release);
                    return true;
                }
            } else if (lead < 0) {
                return false;
            } else {
                at = head_.load(std::memory_order_relaxed);
            }
        }
    }

    /// Pushes `item`, dropping the oldest items while the queue is full; gives `item` up after a few contended rounds.
    /// Returns how many items were lost.
    int pushDroppingOldest(T item) noexcept REALTIME
    {
        int lost = 0;
        for (int round = 0; round < kRounds; ++round) {
            if (tryPush(item)) {
                return lost;
            }
            T oldest;
            lost += tryPop(oldest) ? 1 : 0;
        }
        return lost + 1;
    }

private:
    static constexpr int kRounds = 16;

    struct alignas(64) Cell {
        std::atomic<std::size_t> turn{0}; // whose turn the cell is: the pusher's at n, the popper's at n + 1
        T item{};
    };

    const std::size_t mask_;
    const std::unique_ptr<Cell[]> cells_;
    alignas(64) std::atomic<std::size_t> head_{0};
    alignas(64) std::atomic<std::size_t> tail_{0};
};

} // namespace tocca

#pragma once

#include "Support/Realtime.h"

#include <atomic>
#include <bit>
#include <cstddef>
#include <memory>
#include <utility>

namespace tocca {

/// A wait-free ring between exactly one writing and one reading thread.
///
/// Threads: `push`: the writer. `front`, `pop`: the reader. `size`: either.
/// Real-time: every member is wait-free; storage is fixed at construction.
/// Errors: `push` into a full ring returns false and leaves it untouched.
template <class T>
class SpscRing { // NOLINT(clang-analyzer-optin.performance.Padding): a line of the cache for each side
public:
    /// `capacity` is rounded up to a power of two.
    explicit SpscRing(std::size_t capacity)
        : mask_(std::bit_ceil(capacity) - 1)
        , items_(std::make_unique<T[]>(mask_ + 1))
    {}

    bool push(T item) noexcept REALTIME
    {
        const std::size_t tail = tail_.load(std::memory_order_relaxed);
        if (tail - head_.load(std::memory_order_acquire) > mask_) {
            return false;
        }
        items_[tail & mask_] = std::move(item);
        tail_.store(tail + 1, std::memory_order_release);
        return true;
    }

    /// The oldest item, or null when the ring is empty; valid until `pop`.
    [[nodiscard]] T* front() noexcept REALTIME
    {
        const std::size_t head = head_.load(std::memory_order_relaxed);
        return head == tail_.load(std::memory_order_acquire) ? nullptr : &items_[head & mask_];
    }

    /// Removes the oldest item; there must be one.
    void pop() noexcept REALTIME
    {
        const std::size_t head = head_.load(std::memory_order_relaxed);
        items_[head & mask_] = T();
        head_.store(head + 1, std::memory_order_release);
    }

    [[nodiscard]] std::size_t size() const noexcept REALTIME
    {
        const std::size_t head = head_.load(std::memory_order_acquire);
        return tail_.load(std::memory_order_acquire) - head;
    }

private:
    const std::size_t mask_;
    const std::unique_ptr<T[]> items_;
    alignas(64) std::atomic<std::size_t> head_{0}; // reader -> writer
    alignas(64) std::atomic<std::size_t> tail_{0}; // writer -> reader
};

} // namespace tocca

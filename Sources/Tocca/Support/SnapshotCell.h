#pragma once

#include "Support/Realtime.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace tocca {

/// Publishes whole values of a small plain struct from one writer to any number of readers.
///
/// Every reader sees one write's value, never a mix of two. The writer goes round a ring of slots, so a reader starts over
/// only when `kSlots - 1` writes have passed it while it copied; a writer that is suspended never holds a reader up.
/// Threads: `store`: one thread. `load`: any.
/// Real-time: both members never allocate, lock or wait.
template <class T>
class SnapshotCell {
    static_assert(std::is_trivially_copyable_v<T> && std::is_default_constructible_v<T>);

public:
    explicit SnapshotCell(const T& initial) noexcept { store(initial); }

    void store(const T& value) noexcept REALTIME
    {
        Words words{};
        std::memcpy(words.data(), &value, sizeof(T));
        const std::uint64_t version = latest_.load(std::memory_order_relaxed) + 1;
        Slot& slot = slots_[version % kSlots];
        slot.version.store(kBeingWritten, std::memory_order_relaxed);
        for (std::size_t i = 0; i < kWords; ++i) {
            // Release: a reader that sees this word also sees that the slot is being written.
            slot.words[i].store(words[i], std::memory_order_release);
        }
        slot.version.store(version, std::memory_order_release);
        latest_.store(version, std::memory_order_release);
    }

    [[nodiscard]] T load() const noexcept REALTIME
    {
        for (;;) {
            const std::uint64_t version = latest_.load(std::memory_order_acquire);
            const Slot& slot = slots_[version % kSlots];
            Words words{};
            for (std::size_t i = 0; i < kWords; ++i) {
                words[i] = slot.words[i].load(std::memory_order_acquire);
            }
            if (slot.version.load(std::memory_order_relaxed) == version) {
                T value;
                std::memcpy(static_cast<void*>(&value), words.data(), sizeof(T));
                return value;
            }
        }
    }

private:
    static constexpr std::size_t kSlots = 64;
    static constexpr std::size_t kWords = (sizeof(T) + 7) / 8;
    static constexpr std::uint64_t kBeingWritten = ~std::uint64_t{0};
    using Words = std::array<std::uint64_t, kWords>;

    struct Slot {
        std::atomic<std::uint64_t> version{0};
        std::array<std::atomic<std::uint64_t>, kWords> words{};
    };

    std::array<Slot, kSlots> slots_{};
    std::atomic<std::uint64_t> latest_{0}; // writer -> readers
};

} // namespace tocca

#pragma once

#include "Support/Wipe.h"

#include <cstddef>
#include <new>
#include <type_traits>
#include <utility>

namespace tocca {

/// A move-only call with its captures stored inside: posting one never allocates. Where it was moved from, or has ended, nothing of them is left.
///
/// Captures larger than `kCapacity` do not compile; box them in a `unique_ptr` off the real-time threads.
class Task {
public:
    static constexpr std::size_t kCapacity = 112;

    Task() noexcept = default;

    template <class F>

    requires(!std::is_same_v<std::remove_cvref_t<F>, Task> && std::is_invocable_v<std::remove_cvref_t<F>&>)
        Task(F&& call) // NOLINT(bugprone-forwarding-reference-overload)
        : operations_(&kOperationsFor<std::remove_cvref_t<F>>)
    {
        using Call = std::remove_cvref_t<F>;
        static_assert(sizeof(Call) <= kCapacity, "capture too large for a task");
        static_assert(alignof(Call) <= alignof(std::max_align_t));
        static_assert(std::is_nothrow_move_constructible_v<Call>);
        ::new (static_cast<void*>(storage_)) Call(std::forward<F>(call));
    }

    Task(Task&& other) noexcept { take(other); }

    Task& operator=(Task&& other) noexcept
    {
        if (this != &other) {
            reset();
            take(other);
        }
        return *this;
    }

    Task(const Task&) = delete;
    Task& operator=(const Task&) = delete;

    ~Task() { reset(); }

    explicit operator bool() const noexcept { return operations_ != nullptr; }

    /// Runs the call. The task must hold one.
    void operator()() { operations_->invoke(storage_); } // NOLINT: the caller knows that it does

private:
    struct Operations {
        void (*invoke)(void*);
        void (*relocate)(void* to, void* from) noexcept;
        void (*destroy)(void*) noexcept;
    };

    template <class Call>
    static constexpr Operations kOperationsFor{
        [](void* self) { (*static_cast<Call*>(self))(); },
        [](void* to, void* from) noexcept {
            ::new (to) Call(std::move(*static_cast<Call*>(from)));
            static_cast<Call*>(from)->~Call();
            wipe(from, sizeof(Call));
        },
        [](void* self) noexcept {
            static_cast<Call*>(self)->~Call();
            wipe(self, sizeof(Call));
        },
    };

    void take(Task& other) noexcept
    {
        if (other.operations_ != nullptr) {
            other.operations_->relocate(storage_, other.storage_);
            operations_ = std::exchange(other.operations_, nullptr);
        }
    }

    void reset() noexcept
    {
        if (operations_ != nullptr) {
            std::exchange(operations_, nullptr)->destroy(storage_);
        }
    }

    const Operations* operations_ = nullptr;
    alignas(std::max_align_t) std::byte storage_[kCapacity];
};

} // namespace tocca

#pragma once

#include "Support/Executor.h"
#include "Support/Subscription.h"
#include "Support/ThreadRole.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tocca {

/// An observable value of a controller.
///
/// Threads: every member: main.
/// Order: observers are called in subscription order on every assignment, equal values included; one that was added during
/// a notification is first called by the next.
/// Lifetime: an observer whose token is gone is not called, even by a delivery already queued.
template <class T>
class Published {
public:
    using Observer = std::function<void(const T&)>;

    explicit Published(T initial)
        : observers_(std::make_shared<Observers>())
        , value_(std::move(initial))
    {}

    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    [[nodiscard]] const T& get() const
    {
        requireThreadRole({ThreadRole::Main}, "Published::get");
        return value_;
    }

    void set(T value)
    {
        requireThreadRole({ThreadRole::Main}, "Published::set");
        value_ = std::move(value);
        observers_->notify(value_);
    }

    /// Calls `observer` synchronously inside every later assignment.
    [[nodiscard]] Subscription onChange(Observer observer)
    {
        requireThreadRole({ThreadRole::Main}, "Published::onChange");
        return observers_->add(std::make_shared<Observer>(std::move(observer)));
    }

    /// Delivers the current value, then every later one, each as a task of its own on `mainQueue`.
    [[nodiscard]] Subscription subscribe(Executor& mainQueue, Observer observer)
    {
        auto shared = std::make_shared<Observer>(std::move(observer));
        auto deliver = [&mainQueue, weak = std::weak_ptr<Observer>(shared)](const T& value) {
            mainQueue.post([weak, boxed = std::make_unique<T>(value)] {
                if (const auto live = weak.lock()) {
                    (*live)(*boxed);
                }
            });
        }; // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the task owns it
        deliver(get());
        // The token alone keeps the observer alive, so queued deliveries die with it.
        auto link = std::make_shared<Subscription>(onChange(std::move(deliver)));
        return Subscription([link, shared] { link->reset(); });
    }

private:
    struct Observers : std::enable_shared_from_this<Observers> {
        std::vector<std::pair<std::uint64_t, std::shared_ptr<Observer>>> entries;
        std::uint64_t nextId = 0;

        Subscription add(std::shared_ptr<Observer> observer)
        {
            const std::uint64_t id = nextId++;
            entries.emplace_back(id, std::move(observer));
            return Subscription([weak = this->weak_from_this(), id] {
                if (const auto live = weak.lock()) {
                    std::erase_if(live->entries, [id](const auto& entry) { return entry.first == id; });
                }
            });
        }

        void notify(const T& value)
        {
            const auto keepAlive = this->shared_from_this();
            // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): an observer may assign again
            const T copy = value;
            const std::uint64_t end = nextId;
            for (std::uint64_t id = 0; id < end; ++id) {
                const auto next = std::find_if(entries.begin(), entries.end(),
                                               [id](const auto& entry) { return entry.first >= id; });
                if (next == entries.end() || next->first >= end) {
                    return;
                }
                id = next->first;
                const auto observer = next->second;
                (*observer)(copy);
            }
        }
    };

    std::shared_ptr<Observers> observers_;
    T value_;
};

} // namespace tocca

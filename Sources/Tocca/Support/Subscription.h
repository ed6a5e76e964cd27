#pragma once

#include <functional>
#include <utility>

namespace tocca {

/// A token that ends an observation when it is destroyed or reset. Threads: main.
class Subscription {
public:
    Subscription() noexcept = default;

    explicit Subscription(std::function<void()> cancel) noexcept
        : cancel_(std::move(cancel))
    {}

    Subscription(Subscription&& other) noexcept
        : cancel_(std::exchange(other.cancel_, nullptr))
    {}

    Subscription& operator=(Subscription&& other) noexcept
    {
        if (this != &other) {
            reset();
            cancel_ = std::exchange(other.cancel_, nullptr);
        }
        return *this;
    }

    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

    ~Subscription() { reset(); }

    void reset() noexcept
    {
        if (auto cancel = std::exchange(cancel_, nullptr)) {
            cancel();
        }
    }

private:
    std::function<void()> cancel_;
};

} // namespace tocca

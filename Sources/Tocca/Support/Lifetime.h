#pragma once

#include <memory>
#include <utility>

namespace tocca {

/// Lets calls that arrive late find out that their owner is gone.
///
/// Declare it as the owner's last member, so that it ends first.
/// Threads: `guard`: any thread that may use the owner. Guarded calls must run on the thread that destroys the owner.
/// Real-time: `guard` does not allocate; it costs one atomic increment.
class Lifetime {
public:
    Lifetime()
        : alive_(std::make_shared<char>())
    {}

    Lifetime(const Lifetime&) = delete;
    Lifetime& operator=(const Lifetime&) = delete;

    /// Wraps `call` so that it does nothing once the owner has been destroyed.
    template <class F>
    [[nodiscard]] auto guard(F call) const
    {
        return [alive = std::weak_ptr<char>(alive_), call = std::move(call)](auto&&... arguments) mutable {
            if (!alive.expired()) {
                call(std::forward<decltype(arguments)>(arguments)...);
            }
        };
    }

private:
    std::shared_ptr<char> alive_;
};

} // namespace tocca

#pragma once

#include "Support/Subscription.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tocca {

/// Handlers that are called with `Arguments` for as long as their tokens live. Threads: main.
template <class... Arguments>
class Listeners {
public:
    using Handler = std::function<void(Arguments...)>;

    [[nodiscard]] Subscription add(Handler handler)
    {
        auto owned = std::make_shared<Handler>(std::move(handler));
        handlers_.push_back(owned);
        return Subscription([owned]() mutable { owned.reset(); });
    }

    /// Calls those that were there when the call began, in the order in which they came.
    void call(Arguments... arguments)
    {
        std::erase_if(handlers_, [](const auto& handler) { return handler.expired(); });
        const auto present = handlers_;
        for (const auto& handler : present) {
            if (const auto alive = handler.lock()) {
                (*alive)(arguments...);
            }
        }
    }

    /// How many there are.
    [[nodiscard]] std::size_t count() const noexcept
    {
        return static_cast<std::size_t>(std::count_if(
            handlers_.begin(), handlers_.end(), [](const auto& handler) { return !handler.expired(); }));
    }

private:
    std::vector<std::weak_ptr<Handler>> handlers_;
};

} // namespace tocca

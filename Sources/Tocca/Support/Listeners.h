#pragma once

#include "Support/Subscription.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tocca {

/// Handlers that are called for as long as their tokens live. Threads: main.
class Listeners {
public:
    [[nodiscard]] Subscription add(std::function<void()> handler)
    {
        auto owned = std::make_shared<std::function<void()>>(std::move(handler));
        handlers_.push_back(owned);
        return Subscription([owned]() mutable { owned.reset(); });
    }

    /// Calls those that were there when the call began.
    void call()
    {
        std::erase_if(handlers_, [](const auto& handler) { return handler.expired(); });
        const auto present = handlers_;
        for (const auto& handler : present) {
            if (const auto alive = handler.lock()) {
                (*alive)();
            }
        }
    }

private:
    std::vector<std::weak_ptr<std::function<void()>>> handlers_;
};

} // namespace tocca

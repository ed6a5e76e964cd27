#include "Platform/Memory/MemoryThreads.h"

#include <algorithm>
#include <utility>

namespace tocca::platform::memory {

class MemoryThreads::Handle : public Thread {
public:
    explicit Handle(std::shared_ptr<State> state)
        : state_(std::move(state))
    {}

    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    ~Handle() override { end(); }

    void stop() override { end(); }

private:
    void end() noexcept
    {
        state_->isStopped = true;
        state_->body = Task();
    }

    std::shared_ptr<State> state_;
};

MemoryThreads::MemoryThreads(VirtualTime& time)
{
    time.addWorker([this] { return runOne(); });
}

std::unique_ptr<Thread> MemoryThreads::start(const ThreadOptions& options, Task body)
{
    auto state = std::make_shared<State>();
    state->options = options;
    state->body = std::move(body);
    started_.push_back(state);
    return std::make_unique<Handle>(std::move(state));
}

int MemoryThreads::runningCount() const noexcept
{
    return static_cast<int>(std::count_if(started_.begin(), started_.end(), [](const auto& state) {
        return !state->isStopped && (!state->hasBegun || state->sourceCount > 0);
    }));
}

bool MemoryThreads::runOne()
{
    const auto next = std::find_if(started_.begin(), started_.end(),
                                   [](const auto& state) { return !state->isStopped && !state->hasBegun; });
    if (next == started_.end()) {
        return false;
    }
    current_ = *next;
    current_->hasBegun = true;
    const ThreadRoleScope role(current_->options.role);
    Task body = std::move(current_->body);
    body();
    current_.reset();
    return true;
}

} // namespace tocca::platform::memory

#include "Platform/Memory/MemoryEventTaps.h"

#include <algorithm>
#include <utility>

namespace tocca::platform::memory {

namespace {

bool isDisabledNotice(EventType type) noexcept
{
    return type == EventType::TapDisabledByTimeout || type == EventType::TapDisabledByUserInput;
}

} // namespace

class MemoryEventTaps::Source : public RunLoopSource {
public:
    explicit Source(std::shared_ptr<State> state)
        : state_(std::move(state))
    {
        ++state_->thread->sourceCount;
    }

    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;

    ~Source() override
    {
        --state_->thread->sourceCount;
        state_->thread.reset();
    }

private:
    std::shared_ptr<State> state_;
};

class MemoryEventTaps::Tap : public EventTap {
public:
    Tap(std::shared_ptr<State> state, MemoryThreads& threads)
        : state_(std::move(state))
        , threads_(threads)
    {}

    [[nodiscard]] std::unique_ptr<RunLoopSource> attachToCurrentThread() override
    {
        state_->thread = threads_.current();
        return std::make_unique<Source>(state_);
    }

    void setEnabled(bool isEnabled) override { state_->isEnabled = isEnabled; }

private:
    std::shared_ptr<State> state_;
    MemoryThreads& threads_;
};

MemoryEventTaps::MemoryEventTaps(VirtualTime& time, MemoryThreads& threads)
    : time_(time)
    , threads_(threads)
{}

std::unique_ptr<EventTap> MemoryEventTaps::create(EventMask mask, EventHandler handler)
{
    if (isUnavailable_) {
        return nullptr;
    }
    lastMask_ = mask;
    auto state = std::make_shared<State>();
    state->mask = mask;
    state->handler = std::move(handler);
    states_.push_back(state);
    return std::make_unique<Tap>(std::move(state), threads_);
}

void MemoryEventTaps::send(EventType type, InputEvent event)
{
    event.time = time_.now();
    std::erase_if(states_, [](const auto& state) { return state.expired(); });
    for (const auto& weak : std::vector(states_)) {
        const auto state = weak.lock();
        if (!state || !state->isEnabled || !state->thread || state->thread->isStopped) {
            continue;
        }
        if (isDisabledNotice(type)) {
            state->isEnabled = false;
        } else if ((state->mask & maskOf(type)) == 0) {
            continue;
        }
        const ThreadRoleScope role(state->thread->options.role);
        state->handler(type, event);
    }
}

int MemoryEventTaps::listeningCount() const noexcept
{
    return static_cast<int>(std::count_if(states_.begin(), states_.end(), [](const auto& weak) {
        const auto state = weak.lock();
        return state && state->isEnabled && state->thread && !state->thread->isStopped;
    }));
}

} // namespace tocca::platform::memory

#include "Platform/Memory/MemoryQueues.h"

#include <utility>

namespace tocca::platform::memory {

namespace {

bool runFront(std::deque<Task>& tasks)
{
    if (tasks.empty()) {
        return false;
    }
    Task task = std::move(tasks.front());
    tasks.pop_front();
    task();
    return true;
}

} // namespace

MemoryMainQueue::MemoryMainQueue(VirtualTime& time)
    : time_(time)
{
    time.addWorker([this] { return runFront(tasks_); });
}

void MemoryMainQueue::postAfter(double seconds, Task task)
{
    auto shared = std::make_shared<Task>(std::move(task));
    time_.at(time_.now() + seconds, alive_, [shared] { (*shared)(); });
}

class MemorySerialQueues::Queue : public SerialQueue {
public:
    explicit Queue(std::shared_ptr<State> state)
        : state_(std::move(state))
    {}

    void post(Task task) override
    {
        if (state_->tasks.size() == kCapacity) {
            state_->tasks.pop_front();
        }
        state_->tasks.push_back(std::move(task));
    }

private:
    std::shared_ptr<State> state_;
};

MemorySerialQueues::MemorySerialQueues(VirtualTime& time)
{
    time.addWorker([this] { return runOne(); });
}

std::unique_ptr<SerialQueue> MemorySerialQueues::make(const SerialQueueOptions& options)
{
    made_.push_back(options);
    auto state = std::make_shared<State>();
    state->options = options;
    states_.push_back(state);
    return std::make_unique<Queue>(std::move(state));
}

bool MemorySerialQueues::runOne()
{
    std::erase_if(states_, [](const auto& state) { return state.expired(); });
    if (isStalled_) {
        return false;
    }
    for (const auto& weak : states_) {
        const auto state = weak.lock();
        const ThreadRoleScope role(state->options.role);
        if (runFront(state->tasks)) {
            return true;
        }
    }
    return false;
}

} // namespace tocca::platform::memory

#pragma once

#include "Platform/MainQueue.h"
#include "Platform/Memory/VirtualTime.h"
#include "Platform/SerialQueue.h"

#include <deque>
#include <memory>
#include <vector>

namespace tocca::platform::memory {

/// The main queue in virtual time: both lanes are one.
class MemoryMainQueue : public MainQueue {
public:
    explicit MemoryMainQueue(VirtualTime& time);

    void post(Task task) override { tasks_.push_back(std::move(task)); }

    void postRealtime(Task task) noexcept override { tasks_.push_back(std::move(task)); }

    void postAfter(double seconds, Task task) override;

private:
    VirtualTime& time_;
    std::shared_ptr<const void> alive_ = std::make_shared<char>();
    std::deque<Task> tasks_;
};

/// Serial queues in virtual time; each plays the role it was made for.
class MemorySerialQueues : public SerialQueues {
public:
    /// As many tasks as a queue holds before it drops its oldest.
    static constexpr std::size_t kCapacity = 1024;

    explicit MemorySerialQueues(VirtualTime& time);

    [[nodiscard]] std::unique_ptr<SerialQueue> make(const SerialQueueOptions& options) override;

    /// The options of every queue made so far.
    [[nodiscard]] const std::vector<SerialQueueOptions>& made() const noexcept { return made_; }

    /// Holds every queue's tasks back, as a busy machine would, until it is told otherwise.
    void setStalled(bool isStalled) noexcept { isStalled_ = isStalled; }

private:
    struct State {
        SerialQueueOptions options;
        std::deque<Task> tasks;
    };
    class Queue;

    bool runOne();

    bool isStalled_ = false;
    std::vector<SerialQueueOptions> made_;
    std::vector<std::weak_ptr<State>> states_;
};

} // namespace tocca::platform::memory

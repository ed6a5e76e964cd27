#include "Platform/Linux/System/Threads/LinuxSerialQueues.h"

#include "Platform/Linux/System/Threads/Doorbell.h"
#include "Support/BoundedQueue.h"

#include <atomic>
#include <thread>
#include <utility>

namespace tocca::platform::linux {

namespace {

constexpr std::size_t kCapacity = 1024;

class LinuxSerialQueue final : public SerialQueue {
public:
    LinuxSerialQueue(const SerialQueueOptions& options, const SchedulingAppeal& appeal)
        : thread_([this, options, appeal] {
            adoptThread(options.label, options.role, options.isUserInteractive, appeal);
            work();
        })
    {}

    LinuxSerialQueue(const LinuxSerialQueue&) = delete;
    LinuxSerialQueue& operator=(const LinuxSerialQueue&) = delete;

    ~LinuxSerialQueue() override
    {
        isEnding_.store(true, std::memory_order_release);
        bell_.ring();
        thread_.join();
    }

    void post(Task task) override
    {
        tasks_.pushDroppingOldest(std::move(task));
        bell_.ring();
    }

private:
    void work()
    {
        Task task;
        while (!isEnding_.load(std::memory_order_acquire)) {
            if (!task && !tasks_.tryPop(task)) {
                bell_.sleepUnless([this, &task] {
                    return isEnding_.load(std::memory_order_acquire) || tasks_.tryPop(task);
                });
                continue;
            }
            task();
            task = Task();
        }
    }

    BoundedQueue<Task> tasks_{kCapacity};
    Doorbell bell_;
    std::atomic<bool> isEnding_{false}; // owner -> worker
    std::thread thread_;
};

} // namespace

LinuxSerialQueues::LinuxSerialQueues(SchedulingAppeal appeal)
    : appeal_(std::move(appeal))
{}

std::unique_ptr<SerialQueue> LinuxSerialQueues::make(const SerialQueueOptions& options)
{
    return std::make_unique<LinuxSerialQueue>(options, appeal_);
}

} // namespace tocca::platform::linux

#include "Platform/Linux/System/Threads/LinuxThreads.h"

#include "Platform/Linux/System/Threads/RunLoop.h"

#include <thread>
#include <utility>

namespace tocca::platform::linux {

namespace {

class LinuxThread final : public Thread {
public:
    LinuxThread(const ThreadOptions& options, SchedulingAppeal appeal, Task body)
        : loop_(std::make_shared<RunLoop>())
        , thread_([loop = loop_, options, appeal = std::move(appeal), body = std::move(body)]() mutable {
            loop->run([&] {
                adoptThread(options.name, options.role, options.isUserInteractive, appeal);
                body();
                body = Task(); // frees what the body holds now, and not when the loop ends
            });
        })
    {}

    LinuxThread(const LinuxThread&) = delete;
    LinuxThread& operator=(const LinuxThread&) = delete;

    ~LinuxThread() override { end(); }

    void stop() override { end(); }

private:
    void end()
    {
        loop_->stop();
        if (thread_.joinable()) {
            thread_.join();
        }
    }

    const std::shared_ptr<RunLoop> loop_;
    std::thread thread_;
};

} // namespace

LinuxThreads::LinuxThreads(SchedulingAppeal appeal)
    : appeal_(std::move(appeal))
{}

std::unique_ptr<Thread> LinuxThreads::start(const ThreadOptions& options, Task body)
{
    return std::make_unique<LinuxThread>(options, appeal_, std::move(body));
}

} // namespace tocca::platform::linux

#include "Platform/Linux/System/Threads/RunLoop.h"

#include <cstddef>
#include <utility>

namespace tocca::platform::linux {

namespace {

thread_local RunLoop* loopOfThisThread = nullptr;

} // namespace

std::shared_ptr<RunLoop> RunLoop::current()
{
    return loopOfThisThread != nullptr ? loopOfThisThread->shared_from_this() : nullptr;
}

std::unique_ptr<LoopSource> RunLoop::attach(const int* descriptor, std::function<void()> ready)
{
    auto record = std::make_shared<Record>();
    record->descriptor = descriptor;
    record->ready = std::move(ready);
    records_.push_back(record);
    polled_.reserve(records_.size() + 1);
    return std::make_unique<LoopSource>(shared_from_this(), std::move(record));
}

void RunLoop::run(const std::function<void()>& body)
{
    loopOfThisThread = this;
    if (!isStopping_.load(std::memory_order_acquire)) {
        body();
        serve();
    }
    loopOfThisThread = nullptr;
    // The destructor of a source that outlives the loop must not wait.
    for (const auto& record : records_) {
        record->isLeaving.store(true, std::memory_order_relaxed);
    }
    removeLeaving();
}

void RunLoop::stop() noexcept
{
    isStopping_.store(true, std::memory_order_release);
    wake_.wake();
}

void RunLoop::serve()
{
    for (;;) {
        removeLeaving();
        if (records_.empty() || isStopping_.load(std::memory_order_acquire)) {
            return;
        }
        waitAndCall();
    }
}

void RunLoop::waitAndCall()
{
    polled_.clear();
    polled_.push_back({.fd = wake_.fd(), .events = POLLIN, .revents = 0});
    for (const auto& record : records_) {
        polled_.push_back({.fd = *record->descriptor, .events = POLLIN, .revents = 0});
    }
    if (::poll(polled_.data(), polled_.size(), -1) < 0) {
        return; // interrupted by a signal
    }
    if (polled_.front().revents != 0) {
        wake_.drain();
    }
    const std::size_t count = polled_.size() - 1; // a callback may attach further sources
    for (std::size_t i = 0; i < count; ++i) {
        Record& record = *records_[i];
        if (polled_[i + 1].revents == 0 || record.isLeaving.load(std::memory_order_acquire)) {
            continue;
        }
        if (isStopping_.load(std::memory_order_acquire)) {
            return;
        }
        record.ready();
    }
}

void RunLoop::removeLeaving() noexcept
{
    std::erase_if(records_, [](const std::shared_ptr<Record>& record) {
        if (!record->isLeaving.load(std::memory_order_acquire)) {
            return false;
        }
        record->isGone.store(true, std::memory_order_release);
        record->isGone.notify_all();
        return true;
    });
}

void RunLoop::detach(Record& record) noexcept
{
    record.isLeaving.store(true, std::memory_order_release);
    if (loopOfThisThread == this) {
        return; // the loop looks at the mark before every call
    }
    wake_.wake();
    record.isGone.wait(false, std::memory_order_acquire);
}

LoopSource::LoopSource(std::shared_ptr<RunLoop> loop, std::shared_ptr<RunLoop::Record> record) noexcept
    : loop_(std::move(loop))
    , record_(std::move(record))
{}

LoopSource::~LoopSource()
{
    loop_->detach(*record_);
}

} // namespace tocca::platform::linux

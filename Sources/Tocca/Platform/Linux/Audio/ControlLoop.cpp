#include "Platform/Linux/Audio/ControlLoop.h"

#include <pipewire/pipewire.h>
#include <spa/support/loop.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <ctime>
#include <utility>

namespace tocca::platform::linux {

namespace {

timespec timespecOf(double seconds)
{
    double whole = 0.0;
    const double fraction = std::modf(seconds, &whole);
    return {.tv_sec = static_cast<std::time_t>(whole), .tv_nsec = static_cast<long>(fraction * 1e9)};
}

void run(void* call)
{
    (*static_cast<std::function<void()>*>(call))();
}

} // namespace

ControlLoop::ControlLoop(const char* threadName)
{
    pw_init(nullptr, nullptr);
    loop_ = pw_thread_loop_new(threadName, nullptr);
}

ControlLoop::~ControlLoop()
{
    stop();
    pw_thread_loop_destroy(loop_);
}

void ControlLoop::start()
{
    pw_thread_loop_start(loop_);
}

void ControlLoop::stop()
{
    pw_thread_loop_stop(loop_);
}

pw_loop* ControlLoop::native() const noexcept
{
    return pw_thread_loop_get_loop(loop_);
}

ControlSource::ControlSource(ControlLoop& loop, std::function<void()> call)
    : loop_(loop)
    , call_(std::move(call))
{}

ControlSource::~ControlSource()
{
    pw_loop_destroy_source(loop_.native(), source_);
}

ControlEvent::ControlEvent(ControlLoop& loop, std::function<void()> call)
    : ControlSource(loop, std::move(call))
{
    source_ = pw_loop_add_event(
        loop.native(), [](void* data, std::uint64_t) { run(data); }, &call_);
}

void ControlEvent::signal() noexcept
{
    pw_loop_signal_event(loop_.native(), source_);
}

ControlTimer::ControlTimer(ControlLoop& loop, std::function<void()> call)
    : ControlSource(loop, std::move(call))
{
    source_ = pw_loop_add_timer(
        loop.native(), [](void* data, std::uint64_t) { run(data); }, &call_);
}

void ControlTimer::once(double delay)
{
    constexpr double kAtOnce = 1e-6; // PipeWire switches a timer that is set to 0 off
    schedule(std::max(delay, kAtOnce), 0.0);
}

void ControlTimer::every(double interval)
{
    schedule(interval, interval);
}

void ControlTimer::cancel()
{
    schedule(0.0, 0.0);
}

void ControlTimer::schedule(double delay, double interval)
{
    timespec value = timespecOf(delay);
    timespec repeat = timespecOf(interval);
    pw_loop_update_timer(loop_.native(), source_, &value, &repeat, false);
}

ControlWatch::ControlWatch(ControlLoop& loop, int descriptor, std::function<void()> call)
    : ControlSource(loop, std::move(call))
{
    source_ = pw_loop_add_io(
        loop.native(), descriptor, SPA_IO_IN, true, [](void* data, int, std::uint32_t) { run(data); },
        &call_);
}

} // namespace tocca::platform::linux

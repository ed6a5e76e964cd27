#include "Platform/Linux/Audio/PulseAudio/PulseLoop.h"

#include <pulse/pulseaudio.h>

#include <utility>

namespace tocca::platform::linux {

PulseLoop::Lock::Lock(const PulseLoop& loop)
    : loop_(loop.loop_)
{
    pa_threaded_mainloop_lock(loop_);
}

PulseLoop::Lock::~Lock()
{
    pa_threaded_mainloop_unlock(loop_);
}

PulseLoop::PulseLoop(const char* threadName)
    : loop_(pa_threaded_mainloop_new())
{
    pa_threaded_mainloop_set_name(loop_, threadName);
    pa_threaded_mainloop_start(loop_);
}

PulseLoop::~PulseLoop()
{
    pa_threaded_mainloop_stop(loop_);
    pa_threaded_mainloop_free(loop_);
}

pa_mainloop_api* PulseLoop::api() const noexcept
{
    return pa_threaded_mainloop_get_api(loop_);
}

void forget(pa_operation* operation)
{
    if (operation != nullptr) {
        pa_operation_unref(operation);
    }
}

void endConnection(pa_context*& context)
{
    if (context != nullptr) {
        pa_context_set_state_callback(context, nullptr, nullptr);
        pa_context_set_subscribe_callback(context, nullptr, nullptr);
        pa_context_disconnect(context);
        pa_context_unref(std::exchange(context, nullptr));
    }
}

} // namespace tocca::platform::linux

#include "Platform/Linux/Audio/PulseAudio/PulseDevices.h"

#include <pulse/pulseaudio.h>

#include <string_view>
#include <utility>

#include <unistd.h>

namespace tocca::platform::linux {

namespace {

bool isOwn(const pa_source_output_info& recording)
{
    const char* const process = pa_proplist_gets(recording.proplist, PA_PROP_APPLICATION_PROCESS_ID);
    return process != nullptr && process == std::to_string(::getpid());
}

bool isMeter(const pa_source_output_info& recording)
{
    return recording.resample_method != nullptr && std::string_view(recording.resample_method) == "peaks";
}

} // namespace

PulseDevices::PulseDevices(ControlLoop& loop, Observer observer)
    : DeviceServer(loop, std::move(observer))
    , news_(loop, [this] { settle(); })
    , loop_("tocca-devices")
{}

PulseDevices::~PulseDevices()
{
    disconnect();
}

void PulseDevices::lookNow()
{
    if (context_ == nullptr) {
        retrySoon();
    }
}

void PulseDevices::connect()
{
    disconnect();
    const PulseLoop::Lock lock(loop_);
    isAsking_ = false;
    context_ = pa_context_new(loop_.api(), "Tocca");
    pa_context_set_state_callback(
        context_, [](pa_context*, void* self) { static_cast<PulseDevices*>(self)->stateChanged(); }, this);
    if (pa_context_connect(context_, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
        publish(std::nullopt);
    }
}

void PulseDevices::disconnect()
{
    const PulseLoop::Lock lock(loop_);
    endConnection(context_);
}

void PulseDevices::settle()
{
    std::optional<Devices> found;
    {
        const std::lock_guard lock(mutex_);
        found = found_;
    }
    if (!found) {
        disconnect();
        retryLater();
    } else {
        resetDelay();
    }
    observer_(found);
}

void PulseDevices::stateChanged()
{
    const pa_context_state_t state = pa_context_get_state(context_);
    if (state == PA_CONTEXT_READY) {
        pa_context_set_subscribe_callback(
            context_,
            [](pa_context*, pa_subscription_event_type_t, std::uint32_t, void* self) {
                static_cast<PulseDevices*>(self)->ask();
            },
            this);
        constexpr auto kKinds = static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_SOURCE |
                                                                    PA_SUBSCRIPTION_MASK_SOURCE_OUTPUT);
        forget(pa_context_subscribe(context_, kKinds, nullptr, nullptr));
        ask();
    } else if (!PA_CONTEXT_IS_GOOD(state)) {
        publish(std::nullopt);
    }
}

void PulseDevices::ask()
{
    if (isAsking_) {
        isStale_ = true;
        return;
    }
    isAsking_ = true;
    isStale_ = false;
    sources_.clear();
    recorded_.clear();
    forget(pa_context_get_source_info_list(
        context_,
        [](pa_context*, const pa_source_info* source, int end, void* self) {
            if (end == 0) {
                static_cast<PulseDevices*>(self)->note(*source);
            }
        },
        this));
    forget(pa_context_get_source_output_info_list(
        context_,
        [](pa_context*, const pa_source_output_info* recording, int end, void* self) {
            if (end == 0) {
                static_cast<PulseDevices*>(self)->note(*recording);
            } else {
                static_cast<PulseDevices*>(self)->conclude();
            }
        },
        this));
}

void PulseDevices::note(const pa_source_info& source)
{
    if (source.monitor_of_sink == PA_INVALID_INDEX) {
        sources_[source.index] = source.name;
    }
}

void PulseDevices::note(const pa_source_output_info& recording)
{
    const bool isOfServer = recording.client == PA_INVALID_INDEX;
    if (recording.corked == 0 && !isMeter(recording) && !isOfServer && !isOwn(recording)) {
        recorded_.insert(recording.source);
    }
}

void PulseDevices::conclude()
{
    isAsking_ = false;
    if (isStale_) {
        ask();
        return;
    }
    Devices devices{.inputs = {}, .hasAny = true};
    for (const auto& [index, name] : sources_) {
        devices.inputs.push_back(
            {.name = name, .hasInputStreams = true, .isRunningSomewhere = recorded_.contains(index)});
    }
    publish(std::move(devices));
}

void PulseDevices::publish(std::optional<Devices> devices)
{
    {
        const std::lock_guard lock(mutex_);
        found_ = std::move(devices);
    }
    news_.signal();
}

} // namespace tocca::platform::linux

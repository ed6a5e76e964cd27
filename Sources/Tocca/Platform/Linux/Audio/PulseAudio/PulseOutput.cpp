#include "Platform/Linux/Audio/PulseAudio/PulseOutput.h"

#include <pulse/pulseaudio.h>

#include <algorithm>
#include <utility>

namespace tocca::platform::linux {

namespace {

constexpr int kSmallestBuffer = 512;
constexpr int kLargestBuffer = 4096;
constexpr std::uint32_t kFrameBytes = 2 * sizeof(float);
constexpr auto kServersChoice = static_cast<std::uint32_t>(-1);

pa_buffer_attr bufferOf(int frames)
{
    return {.maxlength = kServersChoice,
            .tlength = static_cast<std::uint32_t>(frames) * kFrameBytes,
            .prebuf = 0,
            .minreq = kServersChoice,
            .fragsize = kServersChoice};
}

pa_proplist* applicationProperties()
{
    pa_proplist* const properties = pa_proplist_new();
    pa_proplist_sets(properties, PA_PROP_APPLICATION_NAME, "Tocca");
    pa_proplist_sets(properties, PA_PROP_APPLICATION_ICON_NAME, "tocca");
    pa_proplist_sets(properties, PA_PROP_MEDIA_ROLE, "game");
    return properties;
}

} // namespace

PulseOutput::PulseOutput(ControlLoop& loop, player::RenderSource& source, OutputMeter& meter,
                         Observer observer)
    : ServerOutput(loop, source, meter, std::move(observer), kSmallestBuffer, kLargestBuffer)
    , news_(loop, [this] { settle(); })
    , loop_("tocca-pulse")
{}

PulseOutput::~PulseOutput()
{
    disconnect();
}

void PulseOutput::lookNow()
{
    if (availability() == Availability::Absent) {
        retrySoon();
    }
}

void PulseOutput::setAwake(bool isAwake)
{
    isAwake_ = isAwake;
    disturb();
    const PulseLoop::Lock lock(loop_);
    if (stream_ != nullptr && pa_stream_get_state(stream_) == PA_STREAM_READY) {
        forget(pa_stream_cork(stream_, isAwake ? 0 : 1, nullptr, nullptr));
    }
}

void PulseOutput::inspect(double now)
{
    if (stream_ == nullptr) {
        return;
    }
    if (progress_.hasStalled(meter_.cycles(), now)) {
        lose();
        return;
    }
    if (governor_.observe(meter_.dropOuts(), now)) {
        const PulseLoop::Lock lock(loop_);
        const pa_buffer_attr buffer = bufferOf(governor_.quantum());
        forget(pa_stream_set_buffer_attr(stream_, &buffer, nullptr, nullptr));
    }
}

void PulseOutput::connect()
{
    disconnect();
    const PulseLoop::Lock lock(loop_);
    pa_proplist* const properties = applicationProperties();
    context_ = pa_context_new_with_proplist(loop_.api(), "Tocca", properties);
    pa_proplist_free(properties);
    pa_context_set_state_callback(
        context_,
        [](pa_context* context, void* self) {
            auto* const output = static_cast<PulseOutput*>(self);
            const pa_context_state_t state = pa_context_get_state(context);
            if (state == PA_CONTEXT_READY) {
                output->subscribe();
            } else if (!PA_CONTEXT_IS_GOOD(state)) {
                output->server_.store(Availability::Absent);
                output->news_.signal();
            }
        },
        this);
    if (pa_context_connect(context_, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
        server_.store(Availability::Absent);
        news_.signal();
    }
}

void PulseOutput::disconnect()
{
    const PulseLoop::Lock lock(loop_);
    server_.store(Availability::Unknown);
    if (stream_ != nullptr) {
        pa_stream_set_write_callback(stream_, nullptr, nullptr);
        pa_stream_set_state_callback(stream_, nullptr, nullptr);
        pa_stream_set_underflow_callback(stream_, nullptr, nullptr);
        pa_stream_disconnect(stream_);
        pa_stream_unref(std::exchange(stream_, nullptr));
    }
    endConnection(context_);
}

void PulseOutput::lose()
{
    disconnect();
    retrySoon();
}

void PulseOutput::settle()
{
    switch (server_.load()) {
    case Availability::Unknown:
        break;
    case Availability::Absent: {
        const bool wasThere = availability() == Availability::Ready || availability() == Availability::NoSink;
        disconnect();
        report(Availability::Absent);
        wasThere ? retrySoon() : retryLater();
        break;
    }
    case Availability::NoSink:
        report(Availability::NoSink);
        break;
    case Availability::Ready:
        report(Availability::Ready);
        if (stream_ == nullptr) {
            openStream();
        }
        break;
    }
}

void PulseOutput::subscribe()
{
    pa_context_set_subscribe_callback(
        context_,
        [](pa_context*, pa_subscription_event_type_t event, std::uint32_t, void* self) {
            if ((event & PA_SUBSCRIPTION_EVENT_TYPE_MASK) != PA_SUBSCRIPTION_EVENT_CHANGE) {
                static_cast<PulseOutput*>(self)->countSinks();
            }
        },
        this);
    forget(pa_context_subscribe(context_, PA_SUBSCRIPTION_MASK_SINK, nullptr, nullptr));
    countSinks();
}

void PulseOutput::countSinks()
{
    countedSinks_ = 0;
    forget(pa_context_get_sink_info_list(
        context_,
        [](pa_context*, const pa_sink_info*, int end, void* self) {
            auto* const output = static_cast<PulseOutput*>(self);
            if (end == 0) {
                ++output->countedSinks_;
                return;
            }
            output->server_.store(output->countedSinks_ > 0 ? Availability::Ready : Availability::NoSink);
            output->news_.signal();
        },
        this));
}

void PulseOutput::openStream()
{
    const PulseLoop::Lock lock(loop_);
    pa_sample_spec format{.format = PA_SAMPLE_FLOAT32NE, .rate = 48000, .channels = 2};
    stream_ = pa_stream_new(context_, "Keyboard sound", &format, nullptr);
    pa_stream_set_state_callback(
        stream_, [](pa_stream*, void* self) { static_cast<PulseOutput*>(self)->streamChanged(); }, this);
    pa_stream_set_write_callback(
        stream_,
        [](pa_stream*, std::size_t bytes, void* self) { static_cast<PulseOutput*>(self)->write(bytes); },
        this);
    pa_stream_set_underflow_callback(
        stream_, [](pa_stream*, void* self) { static_cast<PulseOutput*>(self)->meter_.countDropOut(); },
        this);
    unsigned flags = PA_STREAM_ADJUST_LATENCY | PA_STREAM_FIX_RATE;
    if (!isAwake_) {
        flags |= PA_STREAM_START_CORKED;
    }
    disturb();
    const pa_buffer_attr buffer = bufferOf(governor_.quantum());
    pa_stream_connect_playback(stream_, nullptr, &buffer, static_cast<pa_stream_flags_t>(flags), nullptr,
                               nullptr);
}

void PulseOutput::streamChanged()
{
    const pa_stream_state_t state = pa_stream_get_state(stream_);
    if (state == PA_STREAM_READY) {
        meter_.setSampleRate(pa_stream_get_sample_spec(stream_)->rate);
    } else if (!PA_STREAM_IS_GOOD(state)) {
        server_.store(Availability::Absent);
        news_.signal();
    }
}

void PulseOutput::write(std::size_t bytes) noexcept
{
    const double sampleRate = pa_stream_get_sample_spec(stream_)->rate;
    while (bytes >= kFrameBytes) {
        void* data = nullptr;
        std::size_t size = bytes;
        if (pa_stream_begin_write(stream_, &data, &size) < 0 || data == nullptr || size < kFrameBytes) {
            return;
        }
        const std::size_t frames = std::min(size, bytes) / kFrameBytes;
        const player::RenderCycle cycle =
            clock_.begin(monotonicSeconds(), static_cast<int>(frames), sampleRate);
        meter_.render(source_, {static_cast<float*>(data), frames * 2}, cycle);
        pa_stream_write(stream_, data, frames * kFrameBytes, nullptr, 0, PA_SEEK_RELATIVE);
        bytes -= frames * kFrameBytes;
    }
}

} // namespace tocca::platform::linux

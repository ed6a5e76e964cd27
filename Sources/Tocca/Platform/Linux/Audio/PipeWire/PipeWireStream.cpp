#include "Platform/Linux/Audio/PipeWire/PipeWireStream.h"

#include <pipewire/pipewire.h>
#include <spa/param/audio/format-utils.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace tocca::platform::linux {

namespace {

constexpr std::uint32_t kChannels = 2;
constexpr std::uint32_t kStride = kChannels * sizeof(float);
constexpr double kNanosecond = 1e-9;

std::string latencyOf(int quantum, double sampleRate)
{
    return std::to_string(quantum) + "/" + std::to_string(static_cast<int>(sampleRate));
}

} // namespace

struct PipeWireStream::Native {
    pw_stream* stream = nullptr;
    spa_hook listener{};
    pw_stream_events events{};
};

PipeWireStream::PipeWireStream(pw_core* core, player::RenderSource& source, OutputMeter& meter,
                               std::function<void()> onLost)
    : source_(source)
    , meter_(meter)
    , onLost_(std::move(onLost))
    , native_(std::make_unique<Native>())
{
    native_->stream = pw_stream_new(
        core, "Keyboard sound",
        pw_properties_new(PW_KEY_MEDIA_TYPE, "Audio", PW_KEY_MEDIA_CATEGORY, "Playback", PW_KEY_MEDIA_ROLE,
                          "Game", PW_KEY_APP_NAME, "Tocca", PW_KEY_APP_ICON_NAME, "tocca", PW_KEY_NODE_NAME,
                          "tocca", PW_KEY_NODE_DESCRIPTION, "Tocca", nullptr));
    pw_stream_events& events = native_->events;
    events.version = PW_VERSION_STREAM_EVENTS;
    events.state_changed = [](void* self, pw_stream_state, pw_stream_state state, const char*) {
        if (state == PW_STREAM_STATE_ERROR) {
            static_cast<PipeWireStream*>(self)->onLost_();
        }
    };
    events.param_changed = [](void* self, std::uint32_t id, const spa_pod* param) {
        spa_audio_info_raw format{};
        if (id == SPA_PARAM_Format && param != nullptr && spa_format_audio_raw_parse(param, &format) >= 0) {
            static_cast<PipeWireStream*>(self)->negotiated(format.rate);
        }
    };
    events.process = [](void* self) { static_cast<PipeWireStream*>(self)->process(); };
    if (native_->stream != nullptr) {
        pw_stream_add_listener(native_->stream, &native_->listener, &events, this);
    }
}

PipeWireStream::~PipeWireStream()
{
    if (native_->stream != nullptr) {
        spa_hook_remove(&native_->listener);
        pw_stream_destroy(native_->stream);
    }
}

bool PipeWireStream::connect(int quantum, bool isAwake)
{
    if (native_->stream == nullptr) {
        return false;
    }
    requestedQuantum_ = quantum;
    requestQuantum(quantum);
    // The rate stays open: the graph's own is taken, and nothing is resampled.
    spa_audio_info_raw format{};
    format.format = SPA_AUDIO_FORMAT_F32;
    format.channels = kChannels;
    format.position[0] = SPA_AUDIO_CHANNEL_FL;
    format.position[1] = SPA_AUDIO_CHANNEL_FR;
    std::array<std::byte, 1024> storage{};
    spa_pod_builder builder{};
    spa_pod_builder_init(&builder, storage.data(), storage.size());
    std::array<const spa_pod*, 1> parameters{
        spa_format_audio_raw_build(&builder, SPA_PARAM_EnumFormat, &format)};
    int flags = PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_MAP_BUFFERS | PW_STREAM_FLAG_RT_PROCESS;
    if (!isAwake) {
        flags |= PW_STREAM_FLAG_INACTIVE;
    }
    meter_.restart();
    return pw_stream_connect(native_->stream, PW_DIRECTION_OUTPUT, PW_ID_ANY,
                             static_cast<pw_stream_flags>(flags), parameters.data(), parameters.size()) >= 0;
}

void PipeWireStream::setAwake(bool isAwake)
{
    meter_.restart();
    pw_stream_set_active(native_->stream, isAwake);
}

void PipeWireStream::requestQuantum(int quantum)
{
    requestedQuantum_ = quantum;
    const std::string latency = latencyOf(quantum, meter_.sampleRate());
    const spa_dict_item item{PW_KEY_NODE_LATENCY, latency.c_str()};
    const spa_dict properties{0, 1, &item};
    pw_stream_update_properties(native_->stream, &properties);
}

bool PipeWireStream::isResampled() const noexcept
{
    const double graph = graphRate();
    const double own = sampleRate_.load(std::memory_order_relaxed);
    return graph > 0.0 && own > 0.0 && graph != own;
}

void PipeWireStream::negotiated(double sampleRate)
{
    sampleRate_.store(sampleRate, std::memory_order_relaxed);
    if (sampleRate != meter_.sampleRate()) {
        meter_.setSampleRate(sampleRate);
        requestQuantum(requestedQuantum_);
    }
}

void PipeWireStream::process() noexcept
{
    pw_buffer* const buffer = REALTIME_TRUSTED(pw_stream_dequeue_buffer(native_->stream));
    if (buffer == nullptr) {
        meter_.countDropOut();
        return;
    }
    spa_data& data = buffer->buffer->datas[0];
    std::uint64_t count = data.maxsize / kStride;
    if (buffer->requested > 0) {
        count = std::min(count, buffer->requested);
    }
    pw_time time{};
    REALTIME_TRUSTED(pw_stream_get_time_n(native_->stream, &time, sizeof(time)));
    const double sampleRate = sampleRate_.load(std::memory_order_relaxed);
    const double graphRate =
        time.rate.num > 0 ? static_cast<double>(time.rate.denom) / time.rate.num : sampleRate;
    graphRate_.store(graphRate, std::memory_order_relaxed);
    if (data.data != nullptr) {
        const player::RenderCycle cycle{.beginsAt = static_cast<double>(time.now) * kNanosecond,
                                        .sampleRate = sampleRate,
                                        .quantum = static_cast<int>(count)};
        meter_.countCycle(time.ticks,
                          static_cast<std::uint64_t>(static_cast<double>(count) * graphRate / sampleRate));
        meter_.render(source_, {static_cast<float*>(data.data), count * kChannels}, cycle);
    }
    data.chunk->offset = 0;
    data.chunk->stride = kStride;
    data.chunk->size = static_cast<std::uint32_t>(count) * kStride;
    REALTIME_TRUSTED(pw_stream_queue_buffer(native_->stream, buffer));
}

} // namespace tocca::platform::linux

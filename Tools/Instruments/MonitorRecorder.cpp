#include "Instruments/MonitorRecorder.h"

#include "Instruments/Waiting.h"

#include "Instruments/Now.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <pipewire/pipewire.h>
#include <spa/node/io.h>
#include <spa/param/audio/format-utils.h>
#include <stdexcept>

namespace tocca::instruments {

namespace {

constexpr const char* kName = "tocca-recorder";
constexpr std::size_t kMinQuantum = 32;
constexpr double kNanosecond = 1e-9;
/// What gives the data thread real-time scheduling; without it a busy computer makes it miss cycles.
constexpr const char* kConfiguration = PW_CHECK_VERSION(1, 3, 81) ? "client.conf" : "client-rt.conf";

} // namespace

/// The capture stream. Its data thread alone writes the storage, which is laid out beforehand, and publishes `blockCount_`.
class MonitorRecorder::Stream {
public:
    explicit Stream(std::chrono::seconds capacity)
        : samples_(2 * kAssumedRate * static_cast<std::size_t>(capacity.count()))
        , blocks_(samples_.size() / 2 / kMinQuantum)
    {
        pw_init(nullptr, nullptr);
        loop_ = pw_thread_loop_new(kName, nullptr);
        pw_thread_loop_lock(loop_);
        pw_thread_loop_start(loop_);
        context_ = pw_context_new(pw_thread_loop_get_loop(loop_),
                                  pw_properties_new(PW_KEY_CONFIG_NAME, kConfiguration, nullptr), 0);
        core_ = pw_context_connect(context_, nullptr, 0);
        if (core_ != nullptr) {
            connect();
        }
        pw_thread_loop_unlock(loop_);
    }

    ~Stream()
    {
        pw_thread_loop_lock(loop_);
        if (stream_ != nullptr) {
            spa_hook_remove(&listener_);
            pw_stream_destroy(stream_);
        }
        if (core_ != nullptr) {
            pw_core_disconnect(core_);
        }
        pw_context_destroy(context_);
        pw_thread_loop_unlock(loop_);
        pw_thread_loop_stop(loop_);
        pw_thread_loop_destroy(loop_);
        pw_deinit();
    }

    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;

    /// The time up to which sound has been recorded, 0 before the first block.
    [[nodiscard]] double recordedUntil() const
    {
        const std::size_t count = blockCount_.load(std::memory_order_acquire);
        return count > 0 ? blocks_[count - 1].time : 0.0;
    }

    [[nodiscard]] Recording recording() const
    {
        const std::size_t count = blockCount_.load(std::memory_order_acquire);
        Recording result;
        result.sampleRate = sampleRate_.load();
        if (count > 0) {
            result.blocks.assign(blocks_.begin(), blocks_.begin() + static_cast<std::ptrdiff_t>(count - 1));
            result.samples.assign(samples_.begin(), samples_.begin() + static_cast<std::ptrdiff_t>(
                                                                           2 * blocks_[count - 1].frame));
        }
        result.gaps = gaps_.load();
        return result;
    }

private:
    static constexpr std::size_t kAssumedRate = 48000;
    static const pw_stream_events kEvents;

    void connect()
    {
        stream_ = pw_stream_new(core_, kName,
                                pw_properties_new(PW_KEY_MEDIA_TYPE, "Audio", PW_KEY_MEDIA_CATEGORY,
                                                  "Capture", PW_KEY_STREAM_CAPTURE_SINK, "true", nullptr));
        pw_stream_add_listener(stream_, &listener_, &kEvents, this);
        std::array<std::uint8_t, 512> storage{};
        spa_pod_builder builder{};
        spa_pod_builder_init(&builder, storage.data(), storage.size());
        spa_audio_info_raw format{};
        format.format = SPA_AUDIO_FORMAT_F32;
        format.channels = 2;
        format.position[0] = SPA_AUDIO_CHANNEL_FL;
        format.position[1] = SPA_AUDIO_CHANNEL_FR;
        std::array<const spa_pod*, 1> parameters{
            spa_format_audio_raw_build(&builder, SPA_PARAM_EnumFormat, &format)};
        const auto flags = static_cast<pw_stream_flags>(
            PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_MAP_BUFFERS | PW_STREAM_FLAG_RT_PROCESS);
        pw_stream_connect(stream_, PW_DIRECTION_INPUT, PW_ID_ANY, flags, parameters.data(),
                          parameters.size());
    }

    static void onFormat(void* data, std::uint32_t id, const spa_pod* parameter)
    {
        spa_audio_info_raw format{};
        if (id == SPA_PARAM_Format && parameter != nullptr &&
            spa_format_audio_raw_parse(parameter, &format) >= 0) {
            static_cast<Stream*>(data)->sampleRate_ = static_cast<double>(format.rate);
        }
    }

    static void onIo(void* data, std::uint32_t id, void* area, std::uint32_t size)
    {
        if (id == SPA_IO_Position) {
            static_cast<Stream*>(data)->position_ =
                size >= sizeof(spa_io_position) ? static_cast<spa_io_position*>(area) : nullptr;
        }
    }

    static void onProcess(void* data) { static_cast<Stream*>(data)->process(); }

    void process()
    {
        pw_buffer* const buffer = pw_stream_dequeue_buffer(stream_);
        if (buffer == nullptr) {
            return;
        }
        const spa_data& data = buffer->buffer->datas[0];
        if (data.data != nullptr && position_ != nullptr) {
            const auto* const bytes = static_cast<const std::uint8_t*>(data.data) + data.chunk->offset;
            const auto* const samples = reinterpret_cast<const float*>(bytes);
            append({samples, data.chunk->size / sizeof(float)}, position_->clock);
        }
        pw_stream_queue_buffer(stream_, buffer);
    }

    /// `blocks_[count - 1]` is always the end of what was recorded: the next block's place, with its time.
    void append(std::span<const float> block, const spa_io_clock& clock)
    {
        const std::size_t count = std::max<std::size_t>(1, blockCount_.load(std::memory_order_relaxed));
        const std::size_t frame = blocks_[count - 1].frame;
        if (count == blocks_.size() || 2 * frame + block.size() > samples_.size()) {
            return;
        }
        if (count > 1 && clock.position != expectedPosition_) {
            ++gaps_;
        }
        expectedPosition_ = clock.position + clock.duration;
        std::copy(block.begin(), block.end(), samples_.begin() + static_cast<std::ptrdiff_t>(2 * frame));
        const double time = static_cast<double>(clock.nsec) * kNanosecond;
        blocks_[count - 1].time = time;
        const std::size_t frames = block.size() / 2;
        blocks_[count] = {.frame = frame + frames,
                          .time = time + static_cast<double>(frames) / sampleRate_.load()};
        blockCount_.store(count + 1, std::memory_order_release);
    }

    std::vector<float> samples_;           // data thread -> any, through blockCount_
    std::vector<Recording::Block> blocks_; // data thread -> any, through blockCount_
    std::atomic<std::size_t> blockCount_{0};
    std::atomic<int> gaps_{0};
    std::atomic<double> sampleRate_{static_cast<double>(kAssumedRate)};
    std::uint64_t expectedPosition_ = 0;  // data thread
    spa_io_position* position_ = nullptr; // data thread
    pw_thread_loop* loop_ = nullptr;
    pw_context* context_ = nullptr;
    pw_core* core_ = nullptr;
    pw_stream* stream_ = nullptr;
    spa_hook listener_{};
};

const pw_stream_events MonitorRecorder::Stream::kEvents = [] {
    pw_stream_events events{};
    events.version = PW_VERSION_STREAM_EVENTS;
    events.param_changed = onFormat;
    events.io_changed = onIo;
    events.process = onProcess;
    return events;
}();

MonitorRecorder::MonitorRecorder(std::chrono::seconds capacity, std::chrono::milliseconds deadline)
    : stream_(std::make_unique<Stream>(capacity))
{
    if (!becomesTrue([this] { return stream_->recordedUntil() > 0.0; }, deadline)) {
        throw std::runtime_error("no sink is playing");
    }
}

MonitorRecorder::~MonitorRecorder() = default;

bool MonitorRecorder::waitUntil(double time, std::chrono::milliseconds deadline) const
{
    return becomesTrue([&] { return stream_->recordedUntil() > time; }, deadline);
}

Recording MonitorRecorder::recording() const
{
    return stream_->recording();
}

} // namespace tocca::instruments

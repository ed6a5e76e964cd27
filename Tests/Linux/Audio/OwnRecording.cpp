#include "OwnRecording.h"

#include <pipewire/pipewire.h>
#include <spa/param/audio/format-utils.h>

#include <array>
#include <cstdint>

namespace tocca::platform::linux {

struct OwnRecording::Parts {
    pw_thread_loop* loop = nullptr;
    pw_stream* stream = nullptr;
    pw_stream_events events{};
    std::atomic<bool> hasHeard{false}; // loop -> any
};

OwnRecording::OwnRecording(const std::string& microphone)
    : parts_(std::make_unique<Parts>())
{
    pw_init(nullptr, nullptr);
    parts_->events.version = PW_VERSION_STREAM_EVENTS;
    parts_->events.process = [](void* data) {
        auto* const parts = static_cast<Parts*>(data);
        if (pw_buffer* const buffer = pw_stream_dequeue_buffer(parts->stream); buffer != nullptr) {
            parts->hasHeard = true;
            pw_stream_queue_buffer(parts->stream, buffer);
        }
    };
    parts_->loop = pw_thread_loop_new("own-recording", nullptr);
    pw_thread_loop_lock(parts_->loop);
    pw_thread_loop_start(parts_->loop);
    parts_->stream =
        pw_stream_new_simple(pw_thread_loop_get_loop(parts_->loop), "own",
                             pw_properties_new(PW_KEY_MEDIA_TYPE, "Audio", PW_KEY_MEDIA_CATEGORY, "Capture",
                                               PW_KEY_TARGET_OBJECT, microphone.c_str(), nullptr),
                             &parts_->events, parts_.get());
    std::array<std::uint8_t, 1024> storage{};
    spa_pod_builder builder{};
    spa_pod_builder_init(&builder, storage.data(), storage.size());
    spa_audio_info_raw format{};
    format.format = SPA_AUDIO_FORMAT_F32;
    format.channels = 1;
    const spa_pod* parameters = spa_format_audio_raw_build(&builder, SPA_PARAM_EnumFormat, &format);
    constexpr auto kFlags =
        static_cast<pw_stream_flags>(PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_MAP_BUFFERS);
    pw_stream_connect(parts_->stream, PW_DIRECTION_INPUT, PW_ID_ANY, kFlags, &parameters, 1);
    pw_thread_loop_unlock(parts_->loop);
}

OwnRecording::~OwnRecording()
{
    pw_thread_loop_lock(parts_->loop);
    pw_stream_destroy(parts_->stream);
    pw_thread_loop_unlock(parts_->loop);
    pw_thread_loop_stop(parts_->loop);
    pw_thread_loop_destroy(parts_->loop);
}

bool OwnRecording::hasHeard() const
{
    return parts_->hasHeard;
}

} // namespace tocca::platform::linux

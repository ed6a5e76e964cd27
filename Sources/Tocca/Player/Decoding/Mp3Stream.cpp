#include "Player/Decoding/Mp3Stream.h"

#include <mpg123.h>

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace tocca::player {

struct Mp3Stream::State {
    struct Close {
        void operator()(mpg123_handle* handle) const noexcept { mpg123_delete(handle); }
    };

    std::span<const std::byte> bytes;
    std::size_t position = 0;
    std::unique_ptr<mpg123_handle, Close> handle{mpg123_new(nullptr, nullptr)};
    long sampleRate = 0;
    int channelCount = 0;

    static ssize_t read(void* self, void* to, size_t count)
    {
        auto& state = *static_cast<State*>(self);
        const std::size_t taken = std::min(count, state.bytes.size() - state.position);
        if (taken > 0) {
            std::memcpy(to, state.bytes.data() + state.position, taken);
        }
        state.position += taken;
        return static_cast<ssize_t>(taken);
    }

    static off_t seek(void* self, off_t offset, int whence)
    {
        auto& state = *static_cast<State*>(self);
        const auto size = static_cast<off_t>(state.bytes.size());
        const off_t base = whence == SEEK_CUR   ? static_cast<off_t>(state.position)
                           : whence == SEEK_END ? size
                                                : 0;
        // A damaged header may ask for any distance, so the sum must not overflow.
        const off_t place = base + std::clamp(offset, -base, size - base);
        state.position = static_cast<std::size_t>(place);
        return place;
    }

    bool open()
    {
        mpg123_handle* const mp3 = handle.get();
        int encoding = 0;
        mpg123_frameinfo frame{};
        return mp3 != nullptr &&
               mpg123_param(mp3, MPG123_ADD_FLAGS, MPG123_QUIET | MPG123_FORCE_FLOAT | MPG123_GAPLESS, 0.0) ==
                   MPG123_OK &&
               mpg123_param(mp3, MPG123_REMOVE_FLAGS, MPG123_AUTO_RESAMPLE, 0.0) == MPG123_OK &&
               mpg123_replace_reader_handle(mp3, read, seek, nullptr) == MPG123_OK &&
               mpg123_open_handle(mp3, this) == MPG123_OK &&
               mpg123_getformat(mp3, &sampleRate, &channelCount, &encoding) == MPG123_OK &&
               mpg123_info(mp3, &frame) == MPG123_OK && frame.layer == 3 && encoding == MPG123_ENC_FLOAT_32;
    }
};

Mp3Stream::Mp3Stream(std::span<const std::byte> bytes)
    : state_(std::make_unique<State>())
{
    state_->bytes = bytes;
    if (!state_->open()) {
        state_->handle.reset();
    }
}

Mp3Stream::~Mp3Stream() = default;

bool Mp3Stream::isOpen() const noexcept
{
    return state_->handle != nullptr;
}

int Mp3Stream::sampleRate() const noexcept
{
    return static_cast<int>(state_->sampleRate);
}

int Mp3Stream::channelCount() const noexcept
{
    return state_->channelCount;
}

std::size_t Mp3Stream::read(std::span<float> samples)
{
    const std::size_t frameBytes = sizeof(float) * static_cast<std::size_t>(state_->channelCount);
    const std::size_t wanted = samples.size_bytes() / frameBytes * frameBytes;
    std::size_t got = 0;
    int status = MPG123_OK;
    // A frame may hold no sound, for the bits of another.
    while (status == MPG123_OK && got == 0) {
        status = mpg123_read(state_->handle.get(), samples.data(), wanted, &got);
    }
    return status == MPG123_NEW_FORMAT ? 0 : got / frameBytes;
}

} // namespace tocca::player

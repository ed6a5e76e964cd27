#include "Player/Decoding/SoundFile.h"

#include "Player/Decoding/Mp3Stream.h"

#include <sndfile.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <optional>

namespace tocca::player {

struct SoundFile::State {
    std::optional<Mp3Stream> mp3; // libsndfile decodes the other formats
    std::span<const std::byte> bytes;
    sf_count_t position = 0;
    SF_INFO info{};
    SNDFILE* file = nullptr;
};

namespace {

constexpr std::array kEncodings{SF_FORMAT_PCM_U8, SF_FORMAT_PCM_16, SF_FORMAT_PCM_24, SF_FORMAT_PCM_32,
                                SF_FORMAT_FLOAT,  SF_FORMAT_DOUBLE, SF_FORMAT_ULAW,   SF_FORMAT_ALAW};

template <class State>
SF_VIRTUAL_IO memoryIo()
{
    return {
        .get_filelen = [](void* user) -> sf_count_t {
            return static_cast<sf_count_t>(static_cast<State*>(user)->bytes.size());
        },
        .seek = [](sf_count_t offset, int whence, void* user) -> sf_count_t {
            auto& state = *static_cast<State*>(user);
            const auto size = static_cast<sf_count_t>(state.bytes.size());
            const sf_count_t base = whence == SEEK_CUR ? state.position : whence == SEEK_END ? size : 0;
            // A damaged header may ask for any distance, so the sum must not overflow.
            state.position = base + std::clamp(offset, -base, size - base);
            return state.position;
        },
        .read = [](void* to, sf_count_t count, void* user) -> sf_count_t {
            auto& state = *static_cast<State*>(user);
            const auto left = static_cast<sf_count_t>(state.bytes.size()) - state.position;
            const sf_count_t taken = std::clamp<sf_count_t>(count, 0, left);
            if (taken > 0) {
                std::memcpy(to, state.bytes.data() + state.position, static_cast<std::size_t>(taken));
            }
            state.position += taken;
            return taken;
        },
        .write = [](const void*, sf_count_t, void*) -> sf_count_t { return 0; },
        .tell = [](void* user) -> sf_count_t { return static_cast<State*>(user)->position; },
    };
}

bool isPlayed(int format, SoundFormat expected) noexcept
{
    const int encoding = format & SF_FORMAT_SUBMASK;
    switch (expected) {
    case SoundFormat::Wav:
        return std::find(kEncodings.begin(), kEncodings.end(), encoding) != kEncodings.end();
    case SoundFormat::OggVorbis:
        return encoding == SF_FORMAT_VORBIS;
    case SoundFormat::Mp3:
        break;
    }
    return false;
}

} // namespace

SoundFile::SoundFile(std::span<const std::byte> bytes, SoundFormat format)
    : state_(std::make_unique<State>())
{
    if (format == SoundFormat::Mp3) {
        state_->mp3.emplace(bytes);
        return;
    }
    state_->bytes = bytes;
    SF_VIRTUAL_IO io = memoryIo<State>();
    state_->file = sf_open_virtual(&io, SFM_READ, &state_->info, state_.get());
    if (state_->file != nullptr && !isPlayed(state_->info.format, format)) {
        sf_close(state_->file);
        state_->file = nullptr;
    }
}

SoundFile::~SoundFile()
{
    if (state_->file != nullptr) {
        sf_close(state_->file);
    }
}

bool SoundFile::isOpen() const noexcept
{
    return state_->mp3 ? state_->mp3->isOpen() : state_->file != nullptr;
}

int SoundFile::sampleRate() const noexcept
{
    return state_->mp3 ? state_->mp3->sampleRate() : state_->info.samplerate;
}

int SoundFile::channelCount() const noexcept
{
    return state_->mp3 ? state_->mp3->channelCount() : state_->info.channels;
}

std::size_t SoundFile::read(std::span<float> samples)
{
    if (state_->mp3) {
        return state_->mp3->read(samples);
    }
    const auto frames = static_cast<sf_count_t>(samples.size()) / state_->info.channels;
    const sf_count_t got = sf_readf_float(state_->file, samples.data(), frames);
    return static_cast<std::size_t>(std::clamp<sf_count_t>(got, 0, frames));
}

} // namespace tocca::player

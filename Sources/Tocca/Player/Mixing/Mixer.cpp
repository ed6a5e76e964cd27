#include "Player/Mixing/Mixer.h"

#include "Player/Mixing/DenormalGuard.h"
#include "Support/ThreadRole.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tocca::player {

namespace {

constexpr double kOldestSeconds = 0.100;
constexpr double kFarthestSeconds = 0.100;
constexpr double kFadeSeconds = 0.002;

std::size_t fadeFrames(double sampleRate) noexcept
{
    return static_cast<std::size_t>(std::lround(kFadeSeconds * sampleRate));
}

} // namespace

Mixer::Mixer(const platform::Clock& clock) noexcept
    : clock_(clock)
    , kernel_(bestSincKernel())
{}

std::optional<VoiceTicket> Mixer::start(std::shared_ptr<const PcmClip> clip, platform::Playback playback)
{
    const double now = clock_.now();
    if (!playback.eventTime || !(*playback.eventTime <= now + kFarthestSeconds)) {
        playback.eventTime = now;
    }
    return exchange_.submit({.clip = std::move(clip), .playback = playback});
}

void Mixer::render(std::span<float> frames, const RenderCycle& cycle) noexcept
{
    requireThreadRole({ThreadRole::Render}, "Mixer::render");
    const DenormalGuard guard;
    std::fill(frames.begin(), frames.end(), 0.0F);
    if (trace_.load(std::memory_order_acquire) != nullptr) {
        renderedAt_ = clock_.now();
    }
    admitRequests(cycle);
    voices_.removeIf([&](ActiveVoice& active) {
        const bool isOver = !advance(active, frames, cycle);
        if (isOver) {
            exchange_.giveBack(active.slot);
        }
        return isOver;
    });
    limiter_.process(frames, cycle.sampleRate);
}

void Mixer::admitRequests(const RenderCycle& cycle) noexcept
{
    while (const auto slot = exchange_.take()) {
        if (exchange_.isCancelled(*slot) ||
            exchange_.request(*slot).playback.eventTime < cycle.beginsAt - kOldestSeconds) {
            exchange_.giveBack(*slot);
        } else {
            admit(*slot, cycle);
        }
    }
}

void Mixer::admit(std::uint16_t slot, const RenderCycle& cycle) noexcept
{
    makeRoom(cycle.sampleRate);
    const VoiceRequest& request = exchange_.request(slot);
    const double eventTime = *request.playback.eventTime;
    voices_.add({.voice = Voice(request, cycle.sampleRate),
                 .eventTime = eventTime,
                 .startTime = eventTime + cycle.quantum / cycle.sampleRate,
                 .slot = slot,
                 .hasBegun = false});
}

void Mixer::makeRoom(double sampleRate) noexcept
{
    if (voices_.steadyCount() >= platform::kMaxVoices) {
        voices_.oldest(false)->voice.fadeOut(fadeFrames(sampleRate));
    }
    if (voices_.isFull()) {
        ActiveVoice* const fading = voices_.oldest(true);
        exchange_.giveBack(fading->slot);
        voices_.remove(fading);
    }
}

bool Mixer::advance(ActiveVoice& active, std::span<float> frames, const RenderCycle& cycle) noexcept
{
    if (exchange_.isCancelled(active.slot)) {
        active.voice.fadeOut(fadeFrames(cycle.sampleRate));
    }
    if (!active.hasBegun) {
        if (active.voice.isFading()) {
            return false;
        }
        const double offset = std::round((active.startTime - cycle.beginsAt) * cycle.sampleRate);
        if (const std::size_t count = frames.size() / 2; offset >= static_cast<double>(count)) {
            return true;
        }
        begin(active, offset, cycle);
        frames = frames.subspan(2 * static_cast<std::size_t>(std::max(offset, 0.0)));
    }
    return active.voice.addTo(frames, kernel_);
}

void Mixer::begin(ActiveVoice& active, double offset, const RenderCycle& cycle) noexcept
{
    active.hasBegun = true;
    if (StrokeTrace* const trace = trace_.load(std::memory_order_acquire)) {
        trace->record({.eventTime = active.eventTime,
                       .renderedAt = renderedAt_,
                       .frameTime = cycle.beginsAt + std::max(offset, 0.0) / cycle.sampleRate});
    }
}

} // namespace tocca::player

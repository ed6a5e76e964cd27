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

// Each counter has one writer, so adding needs no locked instruction.
void increment(std::atomic<std::uint64_t>& counter) noexcept
{
    counter.store(counter.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
}

} // namespace

Mixer::Mixer(const platform::Clock& clock) noexcept
    : clock_(clock)
    , kernel_(bestSincKernel())
{}

std::optional<VoiceTicket> Mixer::start(VoiceRequest request)
{
    const double now = clock_.now();
    if (!(request.eventTime <= now + kFarthestSeconds)) {
        request.eventTime = now;
    }
    const auto ticket = exchange_.submit(std::move(request));
    if (!ticket) {
        increment(refused_);
    }
    return ticket;
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

MixerStatistics Mixer::statistics() const noexcept
{
    return {.started = started_.load(std::memory_order_relaxed),
            .late = late_.load(std::memory_order_relaxed),
            .tooOld = tooOld_.load(std::memory_order_relaxed),
            .stolen = stolen_.load(std::memory_order_relaxed),
            .cut = cut_.load(std::memory_order_relaxed),
            .refused = refused_.load(std::memory_order_relaxed)};
}

void Mixer::admitRequests(const RenderCycle& cycle) noexcept
{
    while (const auto slot = exchange_.take()) {
        if (exchange_.isCancelled(*slot)) {
            exchange_.giveBack(*slot);
        } else if (exchange_.request(*slot).eventTime < cycle.beginsAt - kOldestSeconds) {
            increment(tooOld_);
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
    voices_.add({.voice = Voice(request, cycle.sampleRate),
                 .eventTime = request.eventTime,
                 .startTime = request.eventTime + cycle.quantum / cycle.sampleRate,
                 .slot = slot,
                 .hasBegun = false});
}

void Mixer::makeRoom(double sampleRate) noexcept
{
    if (voices_.steadyCount() >= kMaxVoices) {
        voices_.oldest(false)->voice.fadeOut(fadeFrames(sampleRate));
        increment(stolen_);
    }
    if (voices_.isFull()) {
        ActiveVoice* const fading = voices_.oldest(true);
        exchange_.giveBack(fading->slot);
        voices_.remove(fading);
        increment(cut_);
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
    increment(started_);
    if (offset < 0.0) {
        increment(late_);
    }
    if (StrokeTrace* const trace = trace_.load(std::memory_order_acquire)) {
        trace->record({.eventTime = active.eventTime,
                       .renderedAt = renderedAt_,
                       .frameTime = cycle.beginsAt + std::max(offset, 0.0) / cycle.sampleRate});
    }
}

} // namespace tocca::player

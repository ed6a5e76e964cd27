#include "Instruments/Hearing.h"

#include <algorithm>
#include <utility>

namespace tocca::instruments {

namespace {

/// A stroke heard later than this was not answered by the program, whatever it is.
constexpr double kLatest = 0.150; // seconds

} // namespace

std::size_t Hearing::heard() const noexcept
{
    return static_cast<std::size_t>(
        std::count_if(ofStroke.begin(), ofStroke.end(), [](const auto& sound) { return sound.has_value(); }));
}

std::vector<Sound> soundsOf(const Recording& recording, double from)
{
    std::vector<Sound> sounds;
    for (const Onset& onset : findOnsets(recording.samples, recording.sampleRate)) {
        const double time = recording.timeOf(onset.frame);
        if (time >= from) {
            sounds.push_back({.time = time, .onset = onset});
        }
    }
    return sounds;
}

Hearing hear(std::vector<Stroke> strokes, const Recording& recording)
{
    Hearing hearing{.strokes = std::move(strokes), .ofStroke = {}, .others = {}};
    const std::vector<Stroke>& all = hearing.strokes;
    hearing.ofStroke.resize(all.size());
    if (all.empty()) {
        return hearing;
    }
    for (const Sound& sound : soundsOf(recording, all.front().time)) {
        const auto after =
            std::upper_bound(all.begin(), all.end(), sound.time,
                             [](double time, const Stroke& stroke) { return time < stroke.time; });
        const auto index = static_cast<std::size_t>(after - all.begin()) - 1;
        std::optional<Sound>& place = hearing.ofStroke[index];
        if (place || sound.time - all[index].time > kLatest) {
            hearing.others.push_back(sound);
        } else {
            place = sound;
        }
    }
    return hearing;
}

} // namespace tocca::instruments

#include "TestKit/Hearing.h"

#include <algorithm>

namespace tocca::testkit {

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

Hearing hear(const std::vector<Stroke>& strokes, const Recording& recording)
{
    Hearing hearing;
    hearing.ofStroke.resize(strokes.size());
    if (strokes.empty()) {
        return hearing;
    }
    for (const Sound& sound : soundsOf(recording, strokes.front().time)) {
        const auto after =
            std::upper_bound(strokes.begin(), strokes.end(), sound.time,
                             [](double time, const Stroke& stroke) { return time < stroke.time; });
        const auto index = static_cast<std::size_t>(after - strokes.begin()) - 1;
        std::optional<Sound>& place = hearing.ofStroke[index];
        if (place || sound.time - strokes[index].time > kLatest) {
            hearing.others.push_back(sound);
        } else {
            place = sound;
        }
    }
    return hearing;
}

} // namespace tocca::testkit

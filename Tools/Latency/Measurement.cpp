#include "Measurement.h"

#include "Instruments/Now.h"
#include "Instruments/Rehearsal.h"
#include "Subject.h"

#include <cstdint>
#include <optional>
#include <stdexcept>

namespace tocca::latency {

namespace {

constexpr std::chrono::seconds kDeadline{30};
constexpr double kLongestStroke = 0.2; // seconds of recording that a stroke may need

std::vector<std::uint16_t> keysFor(int strokes)
{
    std::vector<std::uint16_t> keys;
    keys.reserve(static_cast<std::size_t>(strokes));
    const auto ordinary = instruments::ordinaryKeys();
    for (int i = 0; i < strokes; ++i) {
        keys.push_back(ordinary[static_cast<std::size_t>(i) % ordinary.size()]);
    }
    return keys;
}

/// Fills in what the sink's monitor tells.
void compare(const instruments::Hearing& hearing, Figures& figures)
{
    std::optional<double> previous;
    for (std::size_t i = 0; i < hearing.strokes.size(); ++i) {
        if (!hearing.ofStroke[i]) {
            ++figures.missedStrokes;
            previous.reset();
            continue;
        }
        const double delay = hearing.ofStroke[i]->time - hearing.strokes[i].time;
        figures.toMonitor.push_back(delay);
        if (previous) {
            figures.intervalError.push_back(delay - *previous);
        }
        previous = delay;
    }
    figures.spuriousSounds = static_cast<int>(hearing.others.size());
}

} // namespace

Figures measure(Subject& subject, const Condition& condition)
{
    subject.post([&subject, shown = condition.hasOverlays] { subject.setOverlaysEnabled(shown); });
    instruments::XTestKeyboard keyboard;
    const instruments::MonitorRecorder recorder(
        std::chrono::seconds(static_cast<int>(condition.strokes * kLongestStroke) + 60), kDeadline);
    if (!instruments::becomesAudible(keyboard, recorder, kDeadline)) {
        throw std::runtime_error("no key is heard");
    }
    (void)subject.takeTimesToFirstSample();
    const std::uint64_t missedBefore = subject.output().missedCycles;
    const std::uint64_t framesBefore = subject.framesPainted();
    const double workBefore = subject.mainThreadWork();
    const double began = instruments::now();

    std::mt19937 random(5); // NOLINT(cert-msc51-cpp,cert-msc32-c): the same typing each time
    const instruments::Hearing hearing = instruments::typeAndHear(
        keyboard, recorder, keysFor(condition.strokes), condition.rhythm, random, kDeadline);

    Figures figures;
    figures.condition = condition.name;
    figures.strokes = condition.strokes;
    figures.quantum = subject.output().quantum;
    figures.missedCycles = subject.output().missedCycles - missedBefore;
    figures.frames = subject.framesPainted() - framesBefore;
    figures.mainThreadWork = subject.mainThreadWork() - workBefore;
    figures.duration = instruments::now() - began;
    figures.toFirstSample = subject.takeTimesToFirstSample();
    compare(hearing, figures);
    return figures;
}

} // namespace tocca::latency

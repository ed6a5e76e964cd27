#include "Acceptance/TypingLoad.h"

#include "Analysis/Interpolation.h"
#include "Model/Decibel.h"
#include "Output/Parallel.h"
#include "Synthesis/RandomStream.h"
#include "Synthesis/Rates.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <iterator>

namespace tocca::soundpack {

namespace {

constexpr double kLongestSound = 1.0;
constexpr std::array<double, 5> kRates{0.98, 0.99, 1.0, 1.01, 1.02};

/// Every recording of a pack at every rate.
using Voices = std::vector<std::vector<double>>;

Voices voicesOf(const SlotRecordings& slot)
{
    Voices voices;
    for (const Recording& recording : slot.variants) {
        for (const double rate : kRates) {
            voices.push_back(atRate(recording.signal, rate));
        }
    }
    return voices;
}

class Keyboard {
public:
    explicit Keyboard(const PackRecordings& pack)
    {
        std::ranges::transform(pack.slots, std::back_inserter(slots_), voicesOf);
    }

    void play(const Slot& slot, double second, RandomStream& random, std::vector<double>& mix) const
    {
        const auto index = std::ranges::find(kSlots, slot) - kSlots.begin();
        const Voices& voices = slots_[static_cast<std::size_t>(index)];
        const auto any = static_cast<std::size_t>(random.unit() * static_cast<double>(voices.size()));
        const auto first = static_cast<std::size_t>(second * kSampleRate);
        for (std::size_t n = 0; n < voices[any].size() && first + n < mix.size(); ++n) {
            mix[first + n] += voices[any][n];
        }
    }

private:
    std::vector<Voices> slots_; // in the order of kSlots
};

// Shares of English prose with the corrections of an average typist.
Key anyKey(RandomStream& random)
{
    const double draw = random.unit();
    if (draw < 0.16) {
        return Key::Space;
    }
    if (draw < 0.22) {
        return Key::Back;
    }
    return draw < 0.24 ? Key::Enter : Key::Standard;
}

void addPeaks(const std::vector<double>& mix, const std::vector<double>& presses, TypingLoad& load)
{
    constexpr std::size_t kPhases = 4;
    const double threshold = gain(kLimiterDb);
    const double quiet = threshold / 2; // twice as high between two samples does not happen below 20 kHz
    double highest = 0;
    std::vector<bool> over(presses.size());
    std::size_t press = 0;
    for (std::size_t n = 0; n + 1 < mix.size(); ++n) {
        while (press + 1 < presses.size() && static_cast<double>(n) >= presses[press + 1] * kSampleRate) {
            ++press;
        }
        if (std::max(std::abs(mix[n]), std::abs(mix[n + 1])) < quiet) {
            continue;
        }
        for (std::size_t phase = 0; phase < kPhases; ++phase) {
            const double level = std::abs(between(mix, n, phase * kInterpolationSteps / kPhases));
            highest = std::max(highest, level);
            if (level > threshold) {
                over[press] = true;
                load.secondsOver += 1 / (kSampleRate * kPhases);
            }
        }
    }
    load.strokesOver = static_cast<int>(std::ranges::count(over, true));
    load.truePeakDb = decibels(highest);
}

} // namespace

TypingLoad typingLoad(const PackRecordings& pack, const Typing& typing)
{
    const Keyboard keyboard(pack);
    RandomStream random("typing/" + pack.folder);
    std::vector<double> mix(static_cast<std::size_t>((typing.seconds + kLongestSound) * kSampleRate));
    std::vector<double> presses;
    const double usualGap = 1 / typing.strokesPerSecond;
    for (double second = 0; second < typing.seconds;) {
        presses.push_back(second);
        const Key key = anyKey(random);
        keyboard.play({key, Action::Press}, second, random, mix);
        if (typing.withReleases) {
            const double held = 0.06 + 0.07 * random.unit();
            keyboard.play({key, Action::Release}, second + held, random, mix);
        }
        // Gaps of typists are spread about log-normally; rolled keys come within tens of milliseconds.
        constexpr double kSpread = 0.5;
        second += usualGap * std::exp(kSpread * random.normal() - kSpread * kSpread / 2);
    }
    TypingLoad load{
        .strokes = static_cast<int>(presses.size()), .strokesOver = 0, .secondsOver = 0, .truePeakDb = 0};
    addPeaks(mix, presses, load);
    return load;
}

void printTypingLoads(std::ostream& out, const std::vector<PackRecordings>& packs)
{
    const std::array<Typing, 4> ways{{
        {.strokesPerSecond = 8, .withReleases = false},
        {.strokesPerSecond = 8, .withReleases = true},
        {.strokesPerSecond = 15, .withReleases = false},
        {.strokesPerSecond = 15, .withReleases = true},
    }};
    std::vector<TypingLoad> loads(packs.size() * ways.size());
    inParallel(loads.size(), [&](std::size_t i) {
        loads[i] = typingLoad(packs[i / ways.size()], ways.at(i % ways.size()));
    });

    out << "Typing at full volume for ten minutes: true peaks over " << kLimiterDb
        << " dBTP, where the limiter begins.\n\n"
        << "pack          a second  releases  strokes    over  % of strokes   ms over  highest dBTP\n"
        << std::fixed;
    for (std::size_t i = 0; i < loads.size(); ++i) {
        const TypingLoad& load = loads[i];
        const Typing& typing = ways.at(i % ways.size());
        out << std::left << std::setw(12) << packs[i / ways.size()].folder << std::right
            << std::setprecision(0) << std::setw(10) << typing.strokesPerSecond << std::setw(10)
            << (typing.withReleases ? "yes" : "no") << std::setw(9) << load.strokes << std::setw(8)
            << load.strokesOver << std::setprecision(3) << std::setw(14)
            << 100.0 * load.strokesOver / load.strokes << std::setw(10) << 1e3 * load.secondsOver
            << std::setprecision(2) << std::setw(14) << load.truePeakDb << '\n';
    }
}

} // namespace tocca::soundpack

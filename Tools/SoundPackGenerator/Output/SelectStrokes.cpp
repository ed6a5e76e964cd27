#include "Output/SelectStrokes.h"

#include "Analysis/Loudness.h"
#include "Analysis/Median.h"
#include "Analysis/Spectrum.h"
#include "Output/Parallel.h"
#include "Synthesis/Finish.h"
#include "Synthesis/Render.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <string_view>

namespace tocca::soundpack {

namespace {

constexpr int kCandidates = 48;

struct Candidate {
    int index;
    std::vector<double> signal;
    double centroidOff = 0; ///< from the median, as a fraction of it
    double lufsOff = 0;     ///< from the median, LU
};

std::vector<Candidate> candidatesOf(const Pack& pack, const Slot& slot)
{
    std::vector<Candidate> candidates;
    std::vector<double> centroids;
    std::vector<double> levels;
    for (int index = 0; index < kCandidates; ++index) {
        candidates.push_back({.index = index, .signal = render(pack, slot, index)});
        centroids.push_back(spectrumOf(candidates.back().signal).centroidHz);
        levels.push_back(loudness(candidates.back().signal));
    }
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        candidates[i].centroidOff = std::abs(centroids[i] / median(centroids) - 1);
        candidates[i].lufsOff = std::abs(levels[i] - median(levels));
    }
    return candidates;
}

// Near ones in the order they were drawn, so that what is kept still scatters; then the least bad.
std::vector<Candidate> nearest(std::vector<Candidate> candidates, std::size_t count)
{
    const auto isNear = [](const Candidate& c) { return c.centroidOff <= 0.06 && c.lufsOff <= 0.9; };
    const auto distance = [](const Candidate& c) { return c.centroidOff / 0.04 + c.lufsOff; };
    const auto far = std::stable_partition(candidates.begin(), candidates.end(), isNear);
    std::stable_sort(far, candidates.end(),
                     [&](const Candidate& a, const Candidate& b) { return distance(a) < distance(b); });
    candidates.erase(candidates.begin() + static_cast<std::ptrdiff_t>(count), candidates.end());
    return candidates;
}

// The soft ceiling takes loudness away as the gain rises, so the gain is found in steps.
double gainFor(const std::vector<Candidate>& chosen, const Stroke& stroke, double targetLufs)
{
    constexpr int kSteps = 4;
    double gainDb = 0;
    for (int step = 0; step < kSteps; ++step) {
        std::vector<double> levels;
        levels.reserve(chosen.size());
        for (const Candidate& candidate : chosen) {
            levels.push_back(loudness(finishUnrounded(candidate.signal, gainDb, stroke)));
        }
        gainDb += targetLufs - median(levels);
    }
    return std::round(gainDb * 100) / 100;
}

std::string_view nameOf(Key key)
{
    switch (key) {
    case Key::Space:
        return "Space";
    case Key::Enter:
        return "Enter";
    case Key::Back:
        return "Back";
    case Key::Standard:
        break;
    }
    return "Standard";
}

void printChoice(std::ostream& out, const Pack& pack, const Slot& slot, const Choice& choice)
{
    out << "        {\"" << pack.folder << "\", {Key::" << nameOf(slot.key)
        << ", Action::" << (slot.action == Action::Press ? "Press" : "Release") << "}, {";
    for (std::size_t i = 0; i < choice.indices.size(); ++i) {
        out << (i == 0 ? "" : ", ") << choice.indices[i];
    }
    out << "}, " << std::fixed << std::setprecision(2) << choice.gainDb << "},\n";
}

} // namespace

Choice selectStrokes(const Pack& pack, const Slot& slot)
{
    const std::vector<Candidate> chosen = nearest(candidatesOf(pack, slot), variantCount(slot));
    Choice choice{.indices = {},
                  .gainDb = gainFor(chosen, strokeOf(pack, slot).stroke, targetLufs(pack, slot))};
    std::ranges::transform(chosen, std::back_inserter(choice.indices), &Candidate::index);
    return choice;
}

void printSelections(std::ostream& out, const std::vector<Pack>& all)
{
    std::vector<Choice> choices(all.size() * kSlots.size());
    inParallel(choices.size(), [&](std::size_t i) {
        choices[i] = selectStrokes(all[i / kSlots.size()], kSlots.at(i % kSlots.size()));
    });
    for (std::size_t i = 0; i < choices.size(); ++i) {
        printChoice(out, all[i / kSlots.size()], kSlots.at(i % kSlots.size()), choices[i]);
    }
}

} // namespace tocca::soundpack

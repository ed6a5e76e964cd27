#include "Acceptance/Checks.h"

#include "Acceptance/SlotSummary.h"
#include "Analysis/CarriageReturn.h"
#include "Analysis/Clicks.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>

namespace tocca::soundpack {

namespace {

/// What the standard press of a pack must measure. Ranges are low, high.
struct Character {
    std::string_view folder;
    std::array<double, 2> centroidHz;
    std::array<double, 2> earlyDecayMs;
    std::array<double, 2> decay20Ms;
};

constexpr std::array<Character, 5> kCharacters{{
    {.folder = "holy-panda", .centroidHz = {750, 1250}, .earlyDecayMs = {35, 80}, .decay20Ms = {12, 28}},
    {.folder = "nk-cream", .centroidHz = {1350, 1900}, .earlyDecayMs = {35, 75}, .decay20Ms = {10, 25}},
    {.folder = "mx-brown", .centroidHz = {2100, 2900}, .earlyDecayMs = {30, 75}, .decay20Ms = {12, 28}},
    {.folder = "typewriter", .centroidHz = {3000, 4000}, .earlyDecayMs = {60, 130}, .decay20Ms = {18, 45}},
    {.folder = "mx-blue", .centroidHz = {4400, 5800}, .earlyDecayMs = {30, 80}, .decay20Ms = {12, 28}},
}};

const PackRecordings& find(const std::vector<PackRecordings>& packs, std::string_view folder)
{
    return *std::ranges::find(packs, folder, &PackRecordings::folder);
}

Check brightnessOrder(const std::vector<PackRecordings>& packs)
{
    Limit step = Limit::atLeast("centroid against the next darker pack", 1.15);
    for (std::size_t i = 1; i < kCharacters.size(); ++i) {
        const SlotRecordings& darker = find(packs, kCharacters[i - 1].folder).standardPress();
        const PackRecordings& brighter = find(packs, kCharacters[i].folder);
        step.add(medianCentroidHz(brighter.standardPress()) / medianCentroidHz(darker), brighter.folder);
    }
    return {16, "packs in order of brightness", {step}};
}

Check rangeCheck(int number, const char* name, const char* unit, const std::vector<PackRecordings>& packs,
                 std::array<double, 2> Character::*range,
                 const std::function<double(const Recording&)>& quantity)
{
    Check check{number, name, {}};
    for (const Character& character : kCharacters) {
        const auto [low, high] = character.*range;
        Limit limit = Limit::within(std::string(character.folder) + unit, low, high);
        limit.add(medianOf(find(packs, character.folder).standardPress(), quantity), "press_standard");
        check.limits.push_back(limit);
    }
    return check;
}

// Jacket and bottom-out: two clicks that a listener tells apart, on the way down and on the way up.
Check twoClicks(const std::vector<PackRecordings>& packs)
{
    Limit apart = Limit::within("ms apart", 3, 12);
    Limit valley = Limit::atLeast("valley below the softer one, dB", 5);
    Limit balance = Limit::within("second against first, dB", -9, 7);
    for (const SlotRecordings& slot : find(packs, "mx-blue").slots) {
        for (const Recording& recording : slot.variants) {
            const Click first = loudestClick(recording.clicks, {0, 2.6});
            const Click second = loudestClick(recording.clicks, {4, 12});
            apart.add(second.atMs - first.atMs, recording.name);
            valley.add(std::min(first.db, second.db) - valleyBetween(recording.clicks, first, second),
                       recording.name);
            balance.add(second.db - first.db, recording.name);
        }
    }
    return {21, "Blue clicks twice", {apart, valley, balance}};
}

Check bumpThenBottom(const std::vector<PackRecordings>& packs)
{
    Limit louder = Limit::within("bottom-out against bump, dB", 6, 20);
    Limit later = Limit::within("bottom-out after bump, ms", 2.2, 8);
    for (const char* folder : {"holy-panda", "mx-brown"}) {
        for (const Recording& recording : find(packs, folder).standardPress().variants) {
            const Click bump = loudestClick(recording.clicks, {0, 2.2});
            const Click bottom = loudestClick(recording.clicks, {2.8, 8.5});
            louder.add(bottom.db - bump.db, recording.name);
            later.add(bottom.atMs - bump.atMs, recording.name);
        }
    }
    return {22, "Panda and Brown: bump, then bottom-out", {louder, later}};
}

Check oneOnset(const std::vector<PackRecordings>& packs)
{
    Limit softer = Limit::atMost("after 4 ms against the onset, dB", -3);
    for (const Recording& recording : find(packs, "nk-cream").standardPress().variants) {
        softer.add(loudestClick(recording.clicks, {4, 15}).db - loudestClick(recording.clicks, {0, 2.6}).db,
                   recording.name);
    }
    return {23, "Cream: one onset", {softer}};
}

Check leverThenSlug(const std::vector<PackRecordings>& packs)
{
    Limit louder = Limit::within("type slug against lever, dB", 6, 22);
    for (const Recording& recording : find(packs, "typewriter").standardPress().variants) {
        louder.add(loudestClick(recording.clicks, {4, 10}).db - loudestClick(recording.clicks, {0, 3}).db,
                   recording.name);
    }
    return {24, "Typewriter: lever, then slug", {louder}};
}

Check carriageReturn(const std::vector<PackRecordings>& packs)
{
    Limit ring = Limit::within("bell to -60 dB, s", 0.5, 1.3);
    Limit share = Limit::within("bell's share, dB", -16, -3);
    Limit purr = Limit::within("ratchet, Hz", 150, 250);
    Limit stop = Limit::within("end stop, ms", 295, 330);
    for (const Recording& recording : find(packs, "typewriter").of({Key::Enter, Action::Press}).variants) {
        const CarriageReturn parts = carriageReturnOf(recording.signal);
        ring.add(parts.bellT60, recording.name);
        share.add(parts.bellDb, recording.name);
        purr.add(parts.ratchetHz, recording.name);
        stop.add(parts.endStopMs, recording.name);
    }
    return {25, "Typewriter: bell, ratchet, end stop", {ring, share, purr, stop}};
}

Check distinctPacks(const std::vector<PackRecordings>& packs)
{
    Limit apart = Limit::atLeast("mean distance of two packs, dB", 6.5);
    Limit ratio = Limit::atLeast("against the larger spread inside", 1.6);
    for (std::size_t i = 0; i < packs.size(); ++i) {
        for (std::size_t j = i + 1; j < packs.size(); ++j) {
            const SlotRecordings& one = packs[i].standardPress();
            const SlotRecordings& other = packs[j].standardPress();
            const double between = meanDistance(one, other);
            const std::string where = packs[i].folder + ", " + packs[j].folder;
            apart.add(between, where);
            ratio.add(between / std::max(meanDistance(one, one), meanDistance(other, other)), where);
        }
    }
    return {26, "packs distinct", {apart, ratio}};
}

} // namespace

std::vector<Check> characterChecks(const std::vector<PackRecordings>& packs)
{
    return {
        brightnessOrder(packs),
        rangeCheck(17, "brightness", ", centroid, Hz", packs, &Character::centroidHz,
                   [](const Recording& r) { return r.spectrum.centroidHz; }),
        rangeCheck(18, "early decay", ", ms to -60 dB", packs, &Character::earlyDecayMs,
                   [](const Recording& r) { return r.earlyDecayMs; }),
        rangeCheck(19, "length of the sound", ", ms to -20 dB", packs, &Character::decay20Ms,
                   [](const Recording& r) { return r.decay20Ms; }),
        twoClicks(packs),
        bumpThenBottom(packs),
        oneOnset(packs),
        leverThenSlug(packs),
        carriageReturn(packs),
        distinctPacks(packs),
    };
}

} // namespace tocca::soundpack

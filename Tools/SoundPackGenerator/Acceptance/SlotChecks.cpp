#include "Acceptance/Checks.h"

#include "Acceptance/SlotSummary.h"
#include "Analysis/Median.h"

#include <cmath>

namespace tocca::soundpack {

namespace {

std::string nameOf(const PackRecordings& pack, const Slot& slot)
{
    return pack.folder + '/' + fileStem(slot);
}

Check density(const std::vector<PackRecordings>& packs)
{
    Limit bands = Limit::atLeast("effective bands, median", 16);
    for (const PackRecordings& pack : packs) {
        for (const SlotRecordings& slot : pack.slots) {
            bands.add(medianOf(slot, [](const Recording& r) { return r.effectiveBands; }),
                      nameOf(pack, slot.slot));
        }
    }
    return {10, "density", {bands}};
}

std::vector<Check> variantChecks(const std::vector<PackRecordings>& packs)
{
    Limit centroid = Limit::atMost("from the mean, %", 8);
    Limit level = Limit::atMost("from the median, LU", 1.8);
    Limit alike = Limit::atMost("highest correlation", 0.97);
    Limit apart = Limit::atLeast("least distance, dB", 1.2);
    for (const PackRecordings& pack : packs) {
        for (const SlotRecordings& slot : pack.slots) {
            const Spread spread = spreadOf(slot);
            const std::string where = nameOf(pack, slot.slot);
            centroid.add(100 * spread.centroid, where);
            level.add(spread.lufsFromMedian, where);
            alike.add(spread.correlation, where);
            apart.add(spread.distance, where);
        }
    }
    return {{11, "centroid spread in a slot", {centroid}},
            {12, "loudness spread in a slot", {level}},
            {13, "variants differ", {alike, apart}}};
}

Check packLoudness(const std::vector<PackRecordings>& packs)
{
    std::vector<double> levels;
    levels.reserve(packs.size());
    for (const PackRecordings& pack : packs) {
        levels.push_back(medianLufs(pack.standardPress()));
    }
    Limit apart = Limit::atMost("standard press from the median, LU", 0.75);
    for (std::size_t i = 0; i < packs.size(); ++i) {
        apart.add(std::abs(levels[i] - median(levels)), packs[i].folder);
    }
    return {14, "packs equally loud", {apart}};
}

Check releaseLevel(const std::vector<PackRecordings>& packs)
{
    Limit below = Limit::within("release against press, LU", -10, -4);
    for (const PackRecordings& pack : packs) {
        for (const Key key : kKeys) {
            const Slot release{key, Action::Release};
            below.add(medianLufs(pack.of(release)) - medianLufs(pack.of({key, Action::Press})),
                      nameOf(pack, release));
        }
    }
    return {15, "releases quieter", {below}};
}

Check bigKeys(const std::vector<PackRecordings>& packs)
{
    Limit darker = Limit::atMost("centroid against the standard key", 1);
    Limit louder = Limit::atLeast("space against the standard key, LU", 0.5);
    for (const PackRecordings& pack : packs) {
        if (!pack.isSwitch) {
            continue;
        }
        const double standard = medianCentroidHz(pack.standardPress());
        for (const Key key : {Key::Space, Key::Enter, Key::Back}) {
            const SlotRecordings& press = pack.of({key, Action::Press});
            darker.add(medianCentroidHz(press) / standard, nameOf(pack, press.slot));
        }
        const SlotRecordings& space = pack.of({Key::Space, Action::Press});
        louder.add(medianLufs(space) - medianLufs(pack.standardPress()), pack.folder);
    }
    return {20, "big keys deeper, space louder", {darker, louder}};
}

} // namespace

std::vector<Check> slotChecks(const std::vector<PackRecordings>& packs)
{
    std::vector<Check> checks{density(packs)};
    for (Check& check : variantChecks(packs)) {
        checks.push_back(std::move(check));
    }
    checks.push_back(packLoudness(packs));
    checks.push_back(releaseLevel(packs));
    checks.push_back(bigKeys(packs));
    return checks;
}

} // namespace tocca::soundpack

#include "Acceptance/Report.h"

#include "Acceptance/SlotSummary.h"
#include "Analysis/Loudness.h"
#include "Synthesis/Filters.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <sstream>

namespace tocca::soundpack {

namespace {

std::string fixed(double value, int width, int decimals)
{
    std::ostringstream text;
    text << std::fixed << std::setprecision(decimals) << std::setw(width) << value;
    return text.str();
}

void printSlot(std::ostream& out, const std::string& name, const SlotRecordings& slot)
{
    const Spread spread = spreadOf(slot);
    out << std::left << std::setw(27) << name << std::right;
    for (std::size_t i = 0; i < kOctavesHz.size(); ++i) {
        out << fixed(medianOf(slot, [&](const Recording& r) { return r.spectrum.octavesDb[i]; }), 6, 1);
    }
    out << fixed(medianLufs(slot), 7, 1)
        << fixed(maximumOf(slot, [](const Recording& r) { return r.peakDb; }), 6, 1)
        << fixed(medianOf(slot, [](const Recording& r) { return r.durationMs; }), 5, 0)
        << fixed(maximumOf(slot, [](const Recording& r) { return r.edges.onsetMs; }), 6, 2)
        << fixed(maximumOf(slot, [](const Recording& r) { return r.edges.attackMs; }), 6, 2)
        << fixed(maximumOf(slot, [](const Recording& r) { return r.edges.lastLevel; }), 6, 0)
        << fixed(medianCentroidHz(slot), 6, 0)
        << fixed(medianOf(slot, [](const Recording& r) { return r.earlyDecayMs; }), 5, 0)
        << fixed(medianOf(slot, [](const Recording& r) { return r.decay20Ms; }), 5, 0)
        << fixed(medianOf(slot, [](const Recording& r) { return r.tonality; }), 6, 1)
        << fixed(medianOf(slot, [](const Recording& r) { return r.effectiveBands; }), 6, 1)
        << fixed(100 * spread.centroid, 6, 1) << fixed(spread.lufsRange, 5, 1)
        << fixed(spread.correlation, 6, 2) << fixed(spread.distance, 5, 1) << '\n';
}

} // namespace

void printSlots(std::ostream& out, const std::vector<PackRecordings>& packs)
{
    out << "Slots. Octaves from 63 Hz to 8 kHz (lower edges) in dB of the whole; L LUFS; pk highest peak, "
           "dBFS;\n"
           "dur ms; on and att worst onset and attack, ms; tail worst last 10 ms, dBFS; cent Hz; T10 and d20 "
           "ms;\n"
           "ton dB; bands; spr worst centroid deviation, %; dL LU; corr and dmin of the two variants most "
           "alike.\n\n";
    out << std::left << std::setw(27) << "slot" << std::right;
    for (const double octave : kOctavesHz) {
        out << fixed(octave, 6, 0);
    }
    out << "      L    pk  dur    on   att  tail  cent  T10  d20   ton bands   spr   dL  corr dmin\n";
    for (const PackRecordings& pack : packs) {
        for (const SlotRecordings& slot : pack.slots) {
            printSlot(out, pack.folder + '/' + fileStem(slot.slot), slot);
        }
    }
}

void printChecks(std::ostream& out, const std::vector<Check>& checks)
{
    const auto held = std::ranges::count_if(checks, &Check::holds);
    out << "Checks: " << held << " of " << checks.size() << " hold.\n\n";
    for (const Check& check : checks) {
        out << std::setw(2) << check.number << "  " << check.name << '\n';
        for (const Limit& limit : check.limits) {
            const int decimals = std::abs(limit.worst()) < 0.01 ? 4 : 2;
            out << "    " << (limit.holds() ? "pass  " : "FAIL  ") << std::left << std::setw(44)
                << limit.quantity() << std::setw(22) << limit.range() << std::right
                << fixed(limit.worst(), 10, decimals) << "  " << limit.where() << '\n';
        }
    }
}

void printDistances(std::ostream& out, const std::vector<PackRecordings>& packs)
{
    out << "Mean distance of standard presses, dB; on the diagonal the spread inside a pack.\n\n            ";
    for (const PackRecordings& pack : packs) {
        out << std::setw(12) << pack.folder;
    }
    out << '\n';
    for (const PackRecordings& one : packs) {
        out << std::left << std::setw(12) << one.folder << std::right;
        for (const PackRecordings& other : packs) {
            out << fixed(meanDistance(one.standardPress(), other.standardPress()), 12, 2);
        }
        out << '\n';
    }
}

void printSmallSpeakers(std::ostream& out, const std::vector<PackRecordings>& packs)
{
    out << "Loudness of standard presses on small speakers, LU against full range.\n\n"
           "pack         from 250 Hz  from 500 Hz\n";
    for (const PackRecordings& pack : packs) {
        out << std::left << std::setw(12) << pack.folder << std::right;
        for (const double fromHz : {250.0, 500.0}) {
            const Biquad speaker = butterworthHighPass(fromHz);
            out << fixed(medianOf(pack.standardPress(),
                                  [&](const Recording& r) {
                                      return loudness(speaker.apply(speaker.apply(r.signal))) - r.lufs;
                                  }),
                         13, 2);
        }
        out << '\n';
    }
}

} // namespace tocca::soundpack

#include "Acceptance/Checks.h"

#include "Acceptance/SlotSummary.h"

#include <functional>

namespace tocca::soundpack {

namespace {

bool isCarriageReturn(const PackRecordings& pack, const Slot& slot)
{
    return !pack.isSwitch && slot == Slot{Key::Enter, Action::Press};
}

void forEachFile(const std::vector<PackRecordings>& packs,
                 const std::function<void(const Recording&, bool isReturn)>& visit)
{
    for (const PackRecordings& pack : packs) {
        for (const SlotRecordings& slot : pack.slots) {
            for (const Recording& recording : slot.variants) {
                visit(recording, isCarriageReturn(pack, slot.slot));
            }
        }
    }
}

Check format(const std::vector<PackRecordings>& packs)
{
    Limit rate = Limit::within("sample rate, Hz", 48000, 48000);
    Limit channels = Limit::within("channels", 1, 1);
    Limit bits = Limit::within("bits per sample", 16, 16);
    Limit files = Limit::within("WAV files in a pack", 40, 40);
    forEachFile(packs, [&](const Recording& recording, bool) {
        rate.add(recording.file.sampleRate, recording.name);
        channels.add(recording.file.channels, recording.name);
        bits.add(recording.file.bitsPerSample, recording.name);
    });
    for (const PackRecordings& pack : packs) {
        files.add(static_cast<double>(pack.fileCount), pack.folder);
    }
    return {1, "format", {rate, channels, bits, files}};
}

Check duration(const std::vector<PackRecordings>& packs)
{
    Limit key = Limit::within("ms", 60, 250);
    Limit carriage = Limit::within("carriage return, ms", 400, 900);
    forEachFile(packs, [&](const Recording& recording, bool isReturn) {
        (isReturn ? carriage : key).add(recording.durationMs, recording.name);
    });
    return {2, "duration", {key, carriage}};
}

Check peak(const std::vector<PackRecordings>& packs)
{
    Limit highest = Limit::atMost("dBFS", -3.0);
    Limit usual = Limit::atLeast("median of standard presses, dBFS", -7);
    forEachFile(packs,
                [&](const Recording& recording, bool) { highest.add(recording.peakDb, recording.name); });
    for (const PackRecordings& pack : packs) {
        usual.add(medianOf(pack.standardPress(), [](const Recording& r) { return r.peakDb; }), pack.folder);
    }
    return {3, "peak", {highest, usual}};
}

Check onset(const std::vector<PackRecordings>& packs)
{
    Limit loud = Limit::atMost("to -20 dB of the peak, ms", 1.0);
    Limit first = Limit::atMost("to -40 dB of the peak, ms", 0.6);
    forEachFile(packs, [&](const Recording& recording, bool) {
        loud.add(recording.edges.onsetMs, recording.name);
        first.add(recording.edges.firstSoundMs, recording.name);
    });
    return {4, "onset", {loud, first}};
}

Check attack(const std::vector<PackRecordings>& packs)
{
    Limit rise = Limit::atMost("ms", 1.0);
    forEachFile(
        packs, [&](const Recording& recording, bool) { rise.add(recording.edges.attackMs, recording.name); });
    return {5, "attack", {rise}};
}

Check ends(const std::vector<PackRecordings>& packs)
{
    Limit first = Limit::atMost("first sample, LSB", 33);
    Limit last = Limit::atMost("last sample, LSB", 1);
    Limit step = Limit::atMost("step in the last 18 ms", 0.002);
    Limit level = Limit::atMost("last 10 ms, dBFS", -66);
    forEachFile(packs, [&](const Recording& recording, bool) {
        first.add(recording.edges.firstSample, recording.name);
        last.add(recording.edges.lastSample, recording.name);
        step.add(recording.edges.lastStep, recording.name);
        level.add(recording.edges.lastLevel, recording.name);
    });
    return {6, "ends", {first, last, step, level}};
}

Check spectrumCheck(int number, const char* name, Limit limit, const std::vector<PackRecordings>& packs,
                    const std::function<double(const Recording&)>& quantity, bool carriageReturnToo)
{
    forEachFile(packs, [&](const Recording& recording, bool isReturn) {
        if (carriageReturnToo || !isReturn) {
            limit.add(quantity(recording), recording.name);
        }
    });
    return {number, name, {limit}};
}

} // namespace

std::vector<Check> fileChecks(const std::vector<PackRecordings>& packs)
{
    return {
        format(packs),
        duration(packs),
        peak(packs),
        onset(packs),
        attack(packs),
        ends(packs),
        spectrumCheck(
            7, "offset", Limit::atMost("dBFS", -80), packs,
            [](const Recording& r) { return r.edges.offsetDb; }, true),
        spectrumCheck(
            8, "rumble", Limit::atMost("below 40 Hz, dB of all", -18), packs,
            [](const Recording& r) { return r.spectrum.rumbleDb; }, true),
        // The bell of the carriage return is meant to be a tone.
        spectrumCheck(
            9, "tonality", Limit::within("dB", 2.5, 9.8), packs,
            [](const Recording& r) { return r.tonality; }, false),
    };
}

} // namespace tocca::soundpack

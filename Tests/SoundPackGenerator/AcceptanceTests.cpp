#include "Acceptance/Checks.h"
#include "Acceptance/Report.h"
#include "Acceptance/TypingLoad.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <sstream>

namespace tocca::soundpack {
namespace {

using Packs = std::vector<PackRecordings>;

const Packs& builtPacks()
{
    static const auto read = readPacks(TOCCA_SOUND_PACKS_DIR);
    if (!read) {
        throw std::runtime_error(read.error().describe());
    }
    return read.value();
}

TEST(BuiltInPacks, KeepEveryCheck)
{
    const std::vector<Check> checks = allChecks(builtPacks());
    EXPECT_EQ(checks.size(), 26U);
    for (const Check& check : checks) {
        std::ostringstream table;
        printChecks(table, {check});
        EXPECT_TRUE(check.holds()) << table.str();
    }
}

TEST(BuiltInPacks, HardlyEverReachTheLimiterAtFullVolume)
{
    for (const PackRecordings& pack : builtPacks()) {
        SCOPED_TRACE(pack.folder);
        const TypingLoad pressed = typingLoad(pack, {.seconds = 120, .withReleases = false});
        const TypingLoad typed = typingLoad(pack, {.seconds = 120, .withReleases = true});
        EXPECT_GT(typed.strokes, 800);
        EXPECT_LE(pressed.strokesOver, pressed.strokes / 1000);
        EXPECT_LE(typed.strokesOver, typed.strokes / 200);
        EXPECT_LT(typed.truePeakDb, 3);
    }
}

TEST(TypingLoad, CountsWhatGoesOver)
{
    Packs loud = builtPacks();
    for (SlotRecordings& slot : loud.front().slots) {
        for (Recording& recording : slot.variants) {
            std::ranges::for_each(recording.signal, [](double& sample) { sample *= 2; });
        }
    }
    const TypingLoad load = typingLoad(loud.front(), {.seconds = 10, .withReleases = false});
    EXPECT_GT(load.strokesOver, load.strokes / 2);
    EXPECT_GT(load.secondsOver, 0);
}

Recording& firstPress(Packs& packs, std::size_t pack)
{
    return packs[pack].slots.front().variants.front();
}

void remeasure(Recording& recording)
{
    recording = measure(recording.name, recording.file);
}

/// A fault in one pack and the check that must see it.
struct Fault {
    const char* name;
    int number;
    std::function<void(Packs&)> plant;
};

const std::vector<Fault>& faults()
{
    const auto scale = [](Recording& recording, double factor) {
        for (std::int16_t& sample : recording.file.samples) {
            sample = static_cast<std::int16_t>(std::clamp(sample * factor, -32768.0, 32767.0));
        }
        remeasure(recording);
    };
    static const std::vector<Fault> all{
        {"a file too many", 1, [](Packs& packs) { ++packs[0].fileCount; }},
        {"another sample rate", 1, [](Packs& packs) { firstPress(packs, 0).file.sampleRate = 44100; }},
        {"a long file", 2,
         [](Packs& packs) {
             firstPress(packs, 1).file.samples.resize(14400);
             remeasure(firstPress(packs, 1));
         }},
        {"a clipped file", 3, [=](Packs& packs) { scale(firstPress(packs, 2), 4); }},
        {"silence before the onset", 4,
         [](Packs& packs) {
             auto& samples = firstPress(packs, 1).file.samples;
             samples.insert(samples.begin(), 60, 0);
             remeasure(firstPress(packs, 1));
         }},
        {"a cut tail", 6,
         [](Packs& packs) {
             firstPress(packs, 4).file.samples.resize(3000);
             remeasure(firstPress(packs, 4));
         }},
        {"an offset", 7,
         [](Packs& packs) {
             std::ranges::for_each(firstPress(packs, 0).file.samples, [](std::int16_t& s) { s += 20; });
             remeasure(firstPress(packs, 0));
         }},
        {"one loud variant", 12, [=](Packs& packs) { scale(firstPress(packs, 1), 0.6); }},
        {"the same variant twice", 13,
         [](Packs& packs) {
             auto& variants = packs[2].slots.front().variants;
             variants[0] = variants[1];
         }},
        {"a quiet pack", 14,
         [=](Packs& packs) {
             for (Recording& recording : packs[3].slots.front().variants) {
                 scale(recording, 0.8);
             }
         }},
        {"releases as loud as presses", 15,
         [](Packs& packs) { packs[0].slots[1].variants = packs[0].slots[0].variants; }},
        {"two packs exchanged", 16, [](Packs& packs) { std::swap(packs[0].slots, packs[4].slots); }},
        {"two packs exchanged", 17, [](Packs& packs) { std::swap(packs[0].slots, packs[4].slots); }},
        {"a bright space key", 20,
         [](Packs& packs) { packs[2].slots[2].variants = packs[4].slots[2].variants; }},
        {"Blue with the sounds of Cream", 21, [](Packs& packs) { packs[4].slots = packs[1].slots; }},
        {"Panda with the sounds of Cream", 22, [](Packs& packs) { packs[0].slots = packs[1].slots; }},
        {"Cream with the sounds of Blue", 23, [](Packs& packs) { packs[1].slots = packs[4].slots; }},
        {"Typewriter with the sounds of Cream", 24, [](Packs& packs) { packs[3].slots = packs[1].slots; }},
        {"a carriage that does not return", 25,
         [](Packs& packs) {
             packs[3].slots[4] = {packs[3].slots[4].slot, packs[3].slots[0].variants};
         }},
        {"two packs alike", 26, [](Packs& packs) { packs[2].slots = packs[4].slots; }},
    };
    return all;
}

TEST(Checks, SeePlantedFaults)
{
    for (const Fault& fault : faults()) {
        SCOPED_TRACE(fault.name);
        Packs packs = builtPacks();
        fault.plant(packs);
        const std::vector<Check> checks = fault.number <= 9                          ? fileChecks(packs)
                                          : fault.number <= 15 || fault.number == 20 ? slotChecks(packs)
                                                                                     : characterChecks(packs);
        const auto check = std::ranges::find(checks, fault.number, &Check::number);
        ASSERT_NE(check, checks.end());
        EXPECT_FALSE(check->holds()) << check->name;
    }
}

TEST(Limit, DoesNotHoldWhereNothingWasMeasured)
{
    Limit limit = Limit::within("any", 0, 1);
    EXPECT_FALSE(limit.holds());
    limit.add(0.5, "here");
    EXPECT_TRUE(limit.holds());
    limit.add(0.9, "there");
    EXPECT_EQ(limit.where(), "there");
    limit.add(std::numeric_limits<double>::quiet_NaN(), "nowhere");
    EXPECT_FALSE(limit.holds());
}

} // namespace
} // namespace tocca::soundpack

#include "Analysis/Loudness.h"
#include "Analysis/Onset.h"
#include "Analysis/Spectrum.h"
#include "Model/Packs.h"
#include "Synthesis/Contacts.h"
#include "Synthesis/Decimator.h"
#include "Synthesis/RandomStream.h"
#include "Synthesis/Rates.h"
#include "Synthesis/Render.h"
#include "Synthesis/Resonators.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace tocca::soundpack {
namespace {

const Pack& packNamed(std::string_view folder)
{
    return *std::ranges::find(packs(), folder, &Pack::folder);
}

double rootMeanSquare(const std::vector<double>& signal)
{
    const double energy = std::inner_product(signal.begin(), signal.end(), signal.begin(), 0.0);
    return std::sqrt(energy / static_cast<double>(signal.size()));
}

TEST(RandomStream, KeepsItsNumbersForEver)
{
    RandomStream raw("test");
    EXPECT_EQ(raw.bits(), 0x46aad63abc8aa135U);
    EXPECT_EQ(raw.bits(), 0xe167862b6ff3d513U);
    EXPECT_EQ(raw.bits(), 0xef560b8e4af54a8eU);

    RandomStream even("test");
    EXPECT_DOUBLE_EQ(even.unit(), 0.27604426321026176);
    EXPECT_DOUBLE_EQ(even.unit(), 0.8804859024093752);

    RandomStream normal("test");
    EXPECT_DOUBLE_EQ(normal.normal(), 1.1729706799329436);
    EXPECT_DOUBLE_EQ(normal.normal(), -0.19096965411838052);
}

TEST(Contacts, GiveTheirImpulseWhateverTheirDuration)
{
    for (const double duration : {30e-6, 90e-6, 230e-6, 420e-6}) {
        SCOPED_TRACE(duration);
        std::vector<double> force(4800);
        addForce(force, 0.01, 2.0, duration);
        EXPECT_NEAR(std::accumulate(force.begin(), force.end(), 0.0), 2.0, 0.05);

        const std::vector<double> slow = decimate(force);
        EXPECT_NEAR(std::accumulate(slow.begin(), slow.end(), 0.0), 2.0, 0.05);
        EXPECT_NEAR(static_cast<double>(std::ranges::max_element(slow) - slow.begin()), 0.01 * kSampleRate,
                    12);
    }
}

TEST(Contacts, GetHarderAndShorterWithSpeed)
{
    const Impact impact{.atMs = 1, .contactUs = 100, .drives = {}};
    RandomStream slowly("same");
    RandomStream quickly("same");
    const StruckImpact slow = strike(impact, 0.5, slowly);
    const StruckImpact quick = strike(impact, 1.0, quickly);
    EXPECT_NEAR(quick.impulse / slow.impulse, std::pow(2, 1.2), 1e-9);
    EXPECT_NEAR(quick.contacts[0].duration / slow.contacts[0].duration, std::pow(2, -0.2), 1e-9);
    EXPECT_DOUBLE_EQ(quick.at, slow.at);
}

TEST(Resonators, RingAtTheirFrequencyAndDieInTheirTime)
{
    std::vector<double> force(static_cast<std::size_t>(kSampleRate));
    force[0] = 1;
    std::vector<double> sound(force.size());
    resonate({{.hz = 1000, .t60 = 0.5, .amplitude = 0.8}}, force, 1, sound);
    EXPECT_NEAR(sound[12], 0.8, 0.01); // a quarter of a turn
    EXPECT_NEAR(spectrumOf(sound).centroidHz, 1000, 10);
    const auto late = sound.begin() + 24000;
    EXPECT_NEAR(*std::max_element(late, late + 48), 0.8e-3, 0.02e-3);
}

TEST(Resonators, OfThePlateAreTheKeyboardsOwn)
{
    const Pack& blue = packNamed("mx-blue");
    const Bank& plate = *std::ranges::find(blue.banks, BankId::Plate, &Bank::id);
    RandomStream keyboard("blue/bank/plate/9");
    RandomStream stroke("blue/std/press/3/bank/plate");
    const auto resonances = tune(plate, {}, keyboard, stroke);
    ASSERT_GT(resonances.size(), 100U);
    EXPECT_NEAR(resonances[0].hz, 336.2652, 1e-4);
    EXPECT_NEAR(resonances[0].t60, 41.6952e-3, 1e-7);
    EXPECT_NEAR(resonances[0].amplitude, -0.003818, 1e-6);
    EXPECT_NEAR(resonances[3].hz, 380.9329, 1e-4);
    EXPECT_NEAR(resonances[3].amplitude, 0.006646, 1e-6);
}

/// A stroke whose render is known from an independent implementation of the same model.
struct Known {
    const char* folder;
    Slot slot;
    int index;
    std::size_t length;
    double peak;
    std::size_t peakAt;
    double rms;
    double lufs;
    double centroidHz;
};

TEST(Render, AgreesWithAnIndependentImplementation)
{
    const std::vector<Known> strokes{
        {"mx-blue", {Key::Standard, Action::Press}, 3, 8640, 6.596498, 18, 0.2834407, -11.463, 5025.1},
        {"holy-panda", {Key::Space, Action::Press}, 2, 11040, 6.638606, 382, 0.6015444, -6.785, 811.5},
        {"nk-cream", {Key::Standard, Action::Press}, 1, 9120, 3.532279, 28, 0.2899409, -12.798, 1565.4},
        {"typewriter", {Key::Enter, Action::Press}, 3, 45600, 4.590824, 14662, 0.2352920, -7.151, 1998.1},
    };
    for (const Known& known : strokes) {
        SCOPED_TRACE(known.folder);
        const std::vector<double> sound = render(packNamed(known.folder), known.slot, known.index);
        ASSERT_EQ(sound.size(), known.length);
        EXPECT_NEAR(peakOf(sound), known.peak, 1e-5);
        EXPECT_EQ(onsetOf(sound, 0.999999), known.peakAt);
        EXPECT_NEAR(rootMeanSquare(sound), known.rms, 1e-6);
        EXPECT_NEAR(loudness(sound), known.lufs, 6e-4);
        EXPECT_NEAR(spectrumOf(sound).centroidHz, known.centroidHz, 0.06);
    }
}

} // namespace
} // namespace tocca::soundpack

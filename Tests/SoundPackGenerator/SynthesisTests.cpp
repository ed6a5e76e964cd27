#include "Analysis/Loudness.h"
#include "Analysis/Onset.h"
#include "Analysis/Spectrum.h"
#include "Model/Packs.h"
#include "Synthesis/RandomStream.h"
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

#include "Model/Packs.h"

namespace tocca::soundpack {

namespace {

// Modes are {Hz, ms to -60 dB, dB}, envelopes {Hz, dB}, drives {bank, dB}.
// clang-format off

std::vector<Bank> banks()
{
    return {
        {.id = BankId::Deep,
         .modes = {{142, 55, -20}, {231, 52, -15}, {335, 48, -17}, {470, 46, -13.5}, {640, 44, -8},
                   {820, 44, -4.5}}},
        {.id = BankId::House,
         .modes = {{1010, 44, -1.5}, {1195, 40, 0.5}, {1440, 36, 1.5}, {1780, 31, 2}, {2240, 26, 3},
                   {2870, 21, 2.5}, {3620, 17, 2.5}, {4700, 13, 1.5}, {6100, 10, -2}}},
        {.id = BankId::Cap,
         .modes = {{1900, 22, -2.5}, {2650, 18, -1.5}, {3500, 14, -2}, {5000, 10, -2.5}, {7200, 8, -10.5}}},
        {.id = BankId::Plate, .seed = 3,
         .field = ModeField{.lowHz = 250, .highHz = 13000, .spacingHz = 95, .denserBelowHz = 900,
                            .t60Ms = 38, .lossFactor = 0.008, .strokeMix = 0.25,
                            .envelope = {{200, -27.5}, {354, -29.5}, {500, -25}, {707, -19.5},
                                         {1000, -14.5}, {1414, -13}, {1800, -11}, {2828, -12}, {3000, -12},
                                         {5000, -12.5}, {5657, -13}, {8000, -24}, {11314, -36},
                                         {16000, -42.5}}}},
        {.id = BankId::Leaf,
         .modes = {{3300, 10, -9}, {4900, 9, -9}, {6700, 8, -11}, {9100, 6, -15}}},
        {.id = BankId::Spring,
         .modes = {{1385, 220, -11}, {2790, 200, -15}, {4830, 260, -8}, {6260, 220, -11},
                   {7720, 160, -17}}},
        {.id = BankId::Stab,
         .field = ModeField{.lowHz = 1800, .highHz = 13000, .spacingHz = 210, .denserBelowHz = 500,
                            .t60Ms = 18, .lossFactor = 0.016, .strokeMix = 0.35,
                            .envelope = {{1500, -15}, {3000, -11}, {6000, -13}, {13000, -23}}}},
    };
}

Stroke standardPress()
{
    return {.lengthMs = 190, .impacts = {
        {.role = Role::Main, .atMs = 0, .contactUs = 170,
         .bounce = {.restitution = 0.42, .firstGapMs = 0.8},
         .rattle = {.count = 3, .spanMs = 4, .levelDb = -22},
         .drives = {{BankId::Deep, 0}, {BankId::House, -4}, {BankId::Cap, -6}, {BankId::Plate, 2},
                    {BankId::Spring, -28}},
         .directDb = 21},
        {.atMs = 0.1, .speed = 0.4, .contactUs = 120,
         .friction = Friction{.delayMs = 0.1, .lengthMs = 5, .levelDb = -20, .cutoffHz = 6000},
         .drives = {{BankId::Plate, -22}, {BankId::Leaf, -18}}},
    }};
}

Stroke standardRelease()
{
    return {.lengthMs = 160, .impacts = {
        {.role = Role::Main, .atMs = 0, .speed = 0.6, .contactUs = 140,
         .bounce = {.restitution = 0.36, .firstGapMs = 1},
         .rattle = {.count = 4, .spanMs = 6, .levelDb = -18},
         .drives = {{BankId::Deep, -9}, {BankId::House, -5}, {BankId::Cap, -4}, {BankId::Plate, 2},
                    {BankId::Spring, -26}},
         .directDb = 21},
    }};
}

std::vector<BigKey> bigKeys()
{
    return {
        {.key = Key::Space, .capScale = 0.58, .deepScale = 0.78, .plateScale = 0.88, .houseScale = 0.9,
         .deepDb = 5, .capDb = 2, .speed = 1.08, .bumpSpeed = 1.45, .farSideMs = 2.1, .farSideDb = -5,
         .ticks = 7, .tickSpanMs = 16, .stabiliserDb = -25, .extraMs = 40},
        {.key = Key::Enter, .capScale = 0.74, .deepScale = 0.9, .plateScale = 1, .houseScale = 0.95,
         .deepDb = 3, .capDb = 1, .speed = 1.05, .bumpSpeed = 1.3, .farSideMs = 1.3, .farSideDb = -6,
         .ticks = 5, .tickSpanMs = 10, .stabiliserDb = -26, .extraMs = 25},
        {.key = Key::Back, .capScale = 0.8, .deepScale = 0.95, .plateScale = 1, .houseScale = 0.97,
         .deepDb = 2, .capDb = 0, .speed = 1, .bumpSpeed = 1.3, .farSideMs = 1.1, .farSideDb = -7,
         .ticks = 4, .tickSpanMs = 9, .stabiliserDb = -26, .extraMs = 25},
    };
}

// clang-format on

} // namespace

/// Polyoxymethylene on polyoxymethylene, no bump: one onset, body 1 to 2.2 kHz, little rattle, audible spring ping.
Pack nkCream()
{
    return {
        .stream = "cream",
        .folder = "nk-cream",
        .title = "NK Cream",
        .speedSpread = 0.07,
        .roomDb = -30,
        .earlyDb = 0,
        .highPassHz = 50,
        .levels = kSwitchLevels,
        .banks = banks(),
        .strokes =
            {
                {{Key::Standard, Action::Press}, standardPress()},
                {{Key::Standard, Action::Release}, standardRelease()},
            },
        .bigKeys = bigKeys(),
    };
}

} // namespace tocca::soundpack

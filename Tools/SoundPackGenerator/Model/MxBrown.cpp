#include "Model/Packs.h"

namespace tocca::soundpack {

namespace {

// Modes are {Hz, ms to -60 dB, dB}, envelopes {Hz, dB}, drives {bank, dB}.
// clang-format off

std::vector<Bank> banks()
{
    return {
        {.id = BankId::Deep,
         .modes = {{160, 50, -29}, {255, 46, -19.5}, {390, 42, -9.5}, {560, 38, -9}, {780, 34, -8.5}}},
        {.id = BankId::House,
         .modes = {{1120, 28, -7}, {1480, 26, -5}, {1930, 24, -1.5}, {2480, 21, -0.5}, {3060, 18, 0},
                   {3780, 15, -1}, {4750, 12, -2}, {6000, 10, -7.5}, {7700, 8, -17.5}}},
        {.id = BankId::Cap,
         .modes = {{2050, 20, -3.5}, {2850, 17, -2.5}, {3900, 13, -5}, {5350, 10, -8}, {7600, 8, -19}}},
        {.id = BankId::Plate,
         .field = ModeField{.lowHz = 280, .highHz = 15000, .spacingHz = 92, .denserBelowHz = 900,
                            .t60Ms = 34, .lossFactor = 0.007, .strokeMix = 0.25,
                            .envelope = {{200, -41}, {354, -24.5}, {500, -23.5}, {707, -22.5},
                                         {1000, -20.5}, {1414, -18}, {2000, -10}, {2828, -4.5},
                                         {3500, -4.5}, {5657, -13.5}, {6000, -15.5}, {9000, -29},
                                         {11314, -39}, {16000, -47.5}}}},
        {.id = BankId::Leaf,
         .modes = {{2900, 16, -5.5}, {4300, 14, -4.5}, {5900, 12, -5.5}, {7800, 10, -8.5},
                   {10400, 8, -13.5}}},
        {.id = BankId::Spring,
         .modes = {{1250, 240, -9.5}, {2510, 220, -13.5}, {4760, 300, -7.5}, {6190, 260, -8.5},
                   {8350, 200, -15.5}}},
        {.id = BankId::Stab,
         .field = ModeField{.lowHz = 1800, .highHz = 14000, .spacingHz = 200, .denserBelowHz = 500,
                            .t60Ms = 22, .lossFactor = 0.012, .strokeMix = 0.35,
                            .envelope = {{1500, -15.5}, {3000, -9.5}, {6000, -9.5}, {14000, -19.5}}}},
    };
}

Stroke standardPress()
{
    return {.lengthMs = 180, .impacts = {
        {.role = Role::Bump, .atMs = 0, .speed = 0.8, .contactUs = 120,
         .rattle = {.count = 2, .spanMs = 2, .levelDb = -10},
         .friction = Friction{.delayMs = 0.1, .lengthMs = 4.5, .levelDb = -22, .cutoffHz = 7000},
         .drives = {{BankId::Leaf, -10}, {BankId::House, -18}, {BankId::Plate, -15}},
         .directDb = 10.5},
        {.role = Role::Main, .atMs = 4.4, .contactUs = 150,
         .bounce = {.restitution = 0.3, .firstGapMs = 0.9},
         .rattle = {.count = 6, .spanMs = 5, .levelDb = -15},
         .drives = {{BankId::Deep, 1}, {BankId::House, -6}, {BankId::Cap, -7}, {BankId::Plate, 1},
                    {BankId::Spring, -37}},
         .directDb = 20.5},
    }};
}

Stroke standardRelease()
{
    return {.lengthMs = 150, .impacts = {
        {.role = Role::Main, .atMs = 0, .speed = 0.62, .contactUs = 105,
         .bounce = {.restitution = 0.32, .firstGapMs = 1.1},
         .rattle = {.count = 6, .spanMs = 7, .levelDb = -14},
         .drives = {{BankId::Deep, -8}, {BankId::House, -6}, {BankId::Cap, -6}, {BankId::Plate, 1},
                    {BankId::Spring, -36}},
         .directDb = 20.5},
        {.atMs = 5, .speed = 0.4, .contactUs = 110,
         .drives = {{BankId::Leaf, -13}, {BankId::House, -18}, {BankId::Plate, -14}}},
    }};
}

std::vector<BigKey> bigKeys()
{
    return {
        {.key = Key::Space, .capScale = 0.58, .deepScale = 0.75, .plateScale = 0.86, .houseScale = 0.88,
         .deepDb = 7, .capDb = 1, .speed = 1.08, .bumpSpeed = 1.45, .farSideMs = 2.6, .farSideDb = -4,
         .ticks = 9, .tickSpanMs = 18, .stabiliserDb = -21, .extraMs = 40},
        {.key = Key::Enter, .capScale = 0.74, .deepScale = 0.88, .plateScale = 1, .houseScale = 0.94,
         .deepDb = 4, .capDb = 0, .speed = 1.05, .bumpSpeed = 1.3, .farSideMs = 1.4, .farSideDb = -6,
         .ticks = 6, .tickSpanMs = 11, .stabiliserDb = -22, .extraMs = 25},
        {.key = Key::Back, .capScale = 0.8, .deepScale = 0.93, .plateScale = 1, .houseScale = 0.96,
         .deepDb = 2.5, .capDb = 0, .speed = 1, .bumpSpeed = 1.3, .farSideMs = 1.2, .farSideDb = -7,
         .ticks = 6, .tickSpanMs = 10, .stabiliserDb = -22, .extraMs = 25},
    };
}

// clang-format on

} // namespace

/// A light tick of the leaf, then a dampened clack centred on 1 to 4 kHz with some rattle.
Pack mxBrown()
{
    return {
        .stream = "brown",
        .folder = "mx-brown",
        .title = "Cherry MX Brown",
        .speedSpread = 0.07,
        .roomDb = -30,
        .earlyDb = 0,
        .highPassHz = 60,
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

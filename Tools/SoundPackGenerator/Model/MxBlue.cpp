#include "Model/Packs.h"

namespace tocca::soundpack {

namespace {

// Modes are {Hz, ms to -60 dB, dB}, envelopes {Hz, dB}, drives {bank, dB}.
// clang-format off

std::vector<Bank> banks()
{
    return {
        {.id = BankId::Deep,
         .modes = {{165, 46, -31.5}, {262, 42, -29.5}, {410, 38, -24}, {600, 34, -15}, {830, 32, -12.5}}},
        {.id = BankId::House,
         .modes = {{1180, 30, -17}, {1620, 27, -14.5}, {2150, 25, -6}, {2760, 22, 1.5}, {3420, 19, 2.5},
                   {4250, 16, 2}, {5300, 13, 0}, {6700, 11, -2}, {8600, 9, -4.5}}},
        {.id = BankId::Cap,
         .modes = {{2200, 20, -7.5}, {3050, 17, -1}, {4100, 14, -3}, {5600, 11, -6}, {7900, 8, -9}}},
        {.id = BankId::Plate, .seed = 9,
         .field = ModeField{.lowHz = 300, .highHz = 16500, .spacingHz = 92, .denserBelowHz = 900,
                            .t60Ms = 40, .lossFactor = 0.004, .strokeMix = 0.25,
                            .envelope = {{200, -47.5}, {354, -44}, {500, -35}, {707, -25.5}, {1000, -28},
                                         {1414, -31.5}, {2000, -21}, {2828, -12.5}, {4000, -12},
                                         {5657, -14}, {7000, -14}, {11000, -16.5}, {11314, -17},
                                         {16500, -26}}}},
        {.id = BankId::Jacket,
         .modes = {{2650, 14, -13.5}, {3480, 14, -9.5}, {4420, 13, -6.5}, {5350, 12, -5.5},
                   {6480, 11, -5.5}, {7700, 10, -6.5}, {9300, 8, -9.5}, {11400, 7, -12.5},
                   {13800, 6, -16.5}},
         .field = ModeField{.lowHz = 1900, .highHz = 16500, .spacingHz = 170, .denserBelowHz = 300,
                            .t60Ms = 15, .lossFactor = 0.008, .strokeMix = 0.25,
                            .envelope = {{1800, -27.5}, {3000, -18.5}, {5000, -12.5}, {8000, -12.5},
                                         {12000, -16.5}, {16500, -25.5}}}},
        {.id = BankId::Leaf,
         .modes = {{3100, 18, -6.5}, {4550, 16, -5.5}, {6300, 14, -5.5}, {8400, 12, -7.5},
                   {11200, 9, -11.5}}},
        {.id = BankId::Spring,
         .modes = {{1270, 260, -10.5}, {2540, 230, -13.5}, {4790, 320, -7.5}, {6220, 280, -7.5},
                   {8410, 220, -13.5}}},
        {.id = BankId::Stab,
         .field = ModeField{.lowHz = 1800, .highHz = 15000, .spacingHz = 200, .denserBelowHz = 500,
                            .t60Ms = 22, .lossFactor = 0.01, .strokeMix = 0.35,
                            .envelope = {{1500, -15.5}, {3000, -9.5}, {6000, -8.5}, {15000, -18.5}}}},
    };
}

Stroke standardPress()
{
    return {.lengthMs = 180, .impacts = {
        {.atMs = 0, .contactUs = 85, .bounce = {.restitution = 0.35, .firstGapMs = 0.55},
         .rattle = {.count = 3, .spanMs = 2.5, .levelDb = -12},
         .drives = {{BankId::Jacket, 0}, {BankId::Leaf, -9}, {BankId::House, -13}, {BankId::Plate, -8},
                    {BankId::Spring, -42}},
         .directDb = 14.5},
        {.role = Role::Main, .atMs = 6.2, .contactUs = 115,
         .bounce = {.restitution = 0.32, .firstGapMs = 0.9},
         .rattle = {.count = 6, .spanMs = 5, .levelDb = -14},
         .drives = {{BankId::Deep, 0}, {BankId::House, -5}, {BankId::Cap, -5}, {BankId::Plate, 0},
                    {BankId::Jacket, -22}, {BankId::Spring, -40}},
         .directDb = 16.5},
    }};
}

Stroke standardRelease()
{
    return {.lengthMs = 150, .impacts = {
        {.atMs = 0, .speed = 0.55, .contactUs = 90,
         .bounce = {.restitution = 0.3, .firstGapMs = 0.6},
         .rattle = {.count = 2, .spanMs = 2, .levelDb = -12},
         .drives = {{BankId::Jacket, -2}, {BankId::Leaf, -11}, {BankId::House, -16},
                    {BankId::Plate, -11}},
         .directDb = 11.5},
        {.role = Role::Main, .atMs = 5.2, .speed = 0.6, .contactUs = 100,
         .bounce = {.restitution = 0.32, .firstGapMs = 1.1},
         .rattle = {.count = 6, .spanMs = 7, .levelDb = -14},
         .drives = {{BankId::Deep, -8}, {BankId::House, -6}, {BankId::Cap, -4}, {BankId::Plate, 1},
                    {BankId::Jacket, -24}, {BankId::Spring, -38}},
         .directDb = 16.5},
    }};
}

std::vector<BigKey> bigKeys()
{
    return {
        {.key = Key::Space, .capScale = 0.58, .deepScale = 0.75, .plateScale = 0.86, .houseScale = 0.88,
         .deepDb = 8, .capDb = 1, .speed = 1.08, .bumpSpeed = 1.45, .farSideMs = 2.2, .farSideDb = -4,
         .ticks = 9, .tickSpanMs = 18, .stabiliserDb = -20, .extraMs = 40},
        {.key = Key::Enter, .capScale = 0.74, .deepScale = 0.88, .plateScale = 1, .houseScale = 0.94,
         .deepDb = 5, .capDb = 0, .speed = 1.05, .bumpSpeed = 1.3, .farSideMs = 1.4, .farSideDb = -6,
         .ticks = 6, .tickSpanMs = 11, .stabiliserDb = -21, .extraMs = 25},
        {.key = Key::Back, .capScale = 0.8, .deepScale = 0.93, .plateScale = 1, .houseScale = 0.96,
         .deepDb = 3, .capDb = 0, .speed = 1, .bumpSpeed = 1.3, .farSideMs = 1.2, .farSideDb = -7,
         .ticks = 6, .tickSpanMs = 10, .stabiliserDb = -21, .extraMs = 25},
    };
}

// clang-format on

} // namespace

/// The click jacket is thrown on the housing floor: a very bright snap, and 6 ms later the clack of the bottom-out.
/// The release clicks twice as well.
Pack mxBlue()
{
    return {
        .stream = "blue",
        .folder = "mx-blue",
        .title = "Cherry MX Blue",
        .speedSpread = 0.07,
        .roomDb = -30,
        .earlyDb = 0,
        .highPassHz = 70,
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

#include "Model/Packs.h"

namespace tocca::soundpack {

namespace {

// Modes are {Hz, ms to -60 dB, dB}, envelopes {Hz, dB}, drives {bank, dB}.
// clang-format off

std::vector<Bank> banks()
{
    return {
        {.id = BankId::Deep,
         .modes = {{118, 70, -13.5}, {176, 62, -11.5}, {262, 58, -5.5}, {348, 52, -0.5}, {452, 46, -1.5},
                   {566, 44, -2.5}, {688, 40, -3.5}, {845, 36, -1.5}}},
        {.id = BankId::House,
         .modes = {{1020, 30, 2.5}, {1260, 26, 5}, {1590, 22, 5}, {2030, 19, 1.5}, {2620, 16, -1},
                   {3350, 13, -2}, {4300, 10, -3.5}}},
        {.id = BankId::Cap,
         .modes = {{1480, 20, 5}, {2250, 15, 0.5}, {3120, 12, -3}, {4550, 9, -4}, {6400, 7, -9}}},
        {.id = BankId::Plate, .seed = 4,
         .field = ModeField{.lowHz = 230, .highHz = 15000, .spacingHz = 95, .denserBelowHz = 900,
                            .t60Ms = 36, .lossFactor = 0.01, .strokeMix = 0.25,
                            .envelope = {{200, -20.5}, {354, -13}, {500, -14.5}, {707, -17.5}, {1000, -11},
                                         {1414, -6.5}, {1500, -7}, {2500, -11.5}, {2828, -13},
                                         {4000, -12.5}, {5657, -8.5}, {8000, -12.5}, {11314, -20.5},
                                         {16000, -24.5}}}},
        {.id = BankId::Leaf,
         .modes = {{2300, 12, -6}, {3650, 10, -7}, {5200, 8, -8}, {6900, 7, -11}, {8800, 6, -14}}},
        {.id = BankId::Spring,
         .modes = {{1310, 160, -8}, {2640, 140, -12}, {4810, 150, -10}, {6240, 120, -14}}},
        {.id = BankId::Stab,
         .field = ModeField{.lowHz = 1800, .highHz = 12000, .spacingHz = 210, .denserBelowHz = 500,
                            .t60Ms = 16, .lossFactor = 0.02, .strokeMix = 0.35,
                            .envelope = {{1500, -12}, {3000, -10}, {6000, -14}, {12000, -24}}}},
    };
}

Stroke standardPress()
{
    return {.lengthMs = 190, .impacts = {
        {.role = Role::Bump, .atMs = 0, .contactUs = 150,
         .rattle = {.count = 2, .spanMs = 2, .levelDb = -10},
         .friction = Friction{.delayMs = 0.2, .lengthMs = 3, .levelDb = -24, .cutoffHz = 3500},
         .drives = {{BankId::Leaf, -9}, {BankId::House, -19}, {BankId::Plate, -17}},
         .directDb = -8},
        {.role = Role::Main, .atMs = 3.4, .contactUs = 230,
         .bounce = {.restitution = 0.34, .firstGapMs = 0.9},
         .rattle = {.count = 4, .spanMs = 5, .levelDb = -20},
         .drives = {{BankId::Deep, 0}, {BankId::House, -5}, {BankId::Cap, -7}, {BankId::Plate, 1},
                    {BankId::Spring, -34}},
         .directDb = 18},
    }};
}

Stroke standardRelease()
{
    return {.lengthMs = 150, .impacts = {
        {.role = Role::Main, .atMs = 0, .speed = 0.62, .contactUs = 180,
         .bounce = {.restitution = 0.3, .firstGapMs = 1.1},
         .rattle = {.count = 4, .spanMs = 6, .levelDb = -18},
         .drives = {{BankId::Deep, -6}, {BankId::House, -3}, {BankId::Cap, -4}, {BankId::Plate, 0},
                    {BankId::Spring, -32}},
         .directDb = 18},
        {.atMs = 4.5, .speed = 0.4, .contactUs = 150,
         .drives = {{BankId::Leaf, -14}, {BankId::House, -16}, {BankId::Plate, -12}}},
    }};
}

std::vector<BigKey> bigKeys()
{
    return {
        {.key = Key::Space, .capScale = 0.58, .deepScale = 0.8, .plateScale = 0.9, .houseScale = 0.93,
         .deepDb = 3.5, .capDb = 2, .speed = 1.08, .bumpSpeed = 1.45, .farSideMs = 1.9, .farSideDb = -5,
         .ticks = 6, .tickSpanMs = 14, .stabiliserDb = -27, .extraMs = 40},
        {.key = Key::Enter, .capScale = 0.74, .deepScale = 0.9, .plateScale = 1, .houseScale = 1,
         .deepDb = 2, .capDb = 1, .speed = 1.05, .bumpSpeed = 1.3, .farSideMs = 1.2, .farSideDb = -6,
         .ticks = 4, .tickSpanMs = 9, .stabiliserDb = -28, .extraMs = 25},
        {.key = Key::Back, .capScale = 0.8, .deepScale = 0.95, .plateScale = 1, .houseScale = 1,
         .deepDb = 1, .capDb = 0, .speed = 1, .bumpSpeed = 1.3, .farSideMs = 1, .farSideDb = -7,
         .ticks = 4, .tickSpanMs = 8, .stabiliserDb = -28, .extraMs = 25},
    };
}

// clang-format on

} // namespace

/// Polyoxymethylene stem in a softer housing, heavy caps, damped plate: a deep, full bottom-out that dies quickly
/// after a dull bump, with no metallic ring. Body 350 to 1300 Hz, rolled off above 2.5 kHz.
Pack holyPanda()
{
    return {
        .stream = "holypanda",
        .folder = "holy-panda",
        .title = "Holy Panda",
        .speedSpread = 0.07,
        .roomDb = -31,
        .earlyDb = -1,
        .highPassHz = 45,
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

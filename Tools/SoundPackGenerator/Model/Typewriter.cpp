#include "Model/Packs.h"

namespace tocca::soundpack {

namespace {

const Levels kTypewriterLevels{
    {Key::Standard, {0, -7}},
    {Key::Space, {-1.5, -7.5}},
    {Key::Enter, {2, -7}},
    {Key::Back, {-1, -7}},
};

// The ratchet of the carriage: teeth pass the pawl ever faster, from 165 to 235 a second, and hit it ever harder.
std::vector<Impact> ratchet(double fromMs, double toMs)
{
    std::vector<Impact> teeth;
    double at = fromMs;
    while (at < toMs) {
        const double x = (at - fromMs) / (toMs - fromMs);
        teeth.push_back({
            .atMs = at,
            .jitter = 0.0012,
            .speed = 0.65 + 0.35 * x,
            .contactUs = 80,
            .rattle = {.count = 1, .spanMs = 1, .levelDb = -10},
            .drives =
                {{BankId::Crack, -9}, {BankId::Pawl, -16}, {BankId::Frame, -25}, {BankId::Carriage, -19}},
        });
        at += 1000 / (165 + 70 * x);
    }
    return teeth;
}

// Inserted after the line feed and before the end stop; random streams count impacts through.
Stroke withRatchet(Stroke carriageReturn)
{
    const std::vector<Impact> teeth = ratchet(52, 300);
    auto& impacts = carriageReturn.impacts;
    impacts.insert(impacts.end() - 1, teeth.begin(), teeth.end());
    return carriageReturn;
}

// Modes are {Hz, ms to -60 dB, dB}, envelopes {Hz, dB}, drives {bank, dB}.
// clang-format off

std::vector<Bank> banks()
{
    return {
        {.id = BankId::Deep,
         .modes = {{96, 60, -20.5}, {148, 55, -19}, {214, 50, -17.5}, {305, 45, -16}, {420, 42, -15.5},
                   {560, 38, -15}, {735, 34, -16}}},
        {.id = BankId::Crack,
         .field = ModeField{.lowHz = 700, .highHz = 17000, .spacingHz = 140, .denserBelowHz = 300,
                            .t60Ms = 9, .lossFactor = 0.004, .strokeMix = 0.3, .t60Spread = 0.6,
                            .envelope = {{700, -25.5}, {1500, -20.5}, {3000, -15.5}, {6000, -13.5},
                                         {10000, -15.5}, {17000, -23.5}}}},
        {.id = BankId::Platen,
         .modes = {{640, 26, -15.5}, {890, 24, -10.5}, {1180, 22, -7}, {1560, 20, -5}, {2050, 18, -2},
                   {2800, 14, 0.5}}},
        {.id = BankId::Typebar,
         .modes = {{1730, 90, -15.5}, {2480, 85, -12.5}, {3320, 80, -10.5}, {4380, 70, -9.5},
                   {5650, 60, -9.5}, {7150, 50, -10.5}, {9050, 38, -12.5}, {11400, 28, -15.5},
                   {14000, 20, -19.5}}},
        {.id = BankId::Frame, .seed = 13,
         .field = ModeField{.lowHz = 260, .highHz = 16500, .spacingHz = 88, .denserBelowHz = 1200,
                            .t60Ms = 95, .lossFactor = 0.0028, .strokeMix = 0.25,
                            .envelope = {{200, -37}, {354, -33.5}, {500, -33}, {707, -32}, {1000, -26},
                                         {1414, -20.5}, {2000, -12.5}, {2828, -6}, {4000, -10.5},
                                         {5657, -16.5}, {8000, -16}, {11314, -18}, {12000, -18.5},
                                         {16500, -26.5}}}},
        {.id = BankId::Pawl,
         .modes = {{2150, 40, -11.5}, {3060, 38, -8.5}, {4150, 34, -6.5}, {5480, 30, -5.5},
                   {7080, 25, -7.5}, {9200, 20, -10.5}, {12100, 14, -14.5}}},
        {.id = BankId::Lever,
         .modes = {{310, 35, -15}, {520, 32, -14}, {860, 28, -13}, {1420, 24, -9.5}, {2300, 20, -4},
                   {3700, 15, -8.5}}},
        {.id = BankId::Bell,
         .modes = {{2637, 900, -5.5}, {2649, 860, -9.5}, {5410, 560, -13.5}, {5442, 540, -16.5},
                   {8830, 260, -19.5}, {8885, 250, -21.5}, {12450, 140, -25.5}}},
        {.id = BankId::Carriage,
         .field = ModeField{.lowHz = 200, .highHz = 9000, .spacingHz = 70, .denserBelowHz = 1500,
                            .t60Ms = 95, .lossFactor = 0.006, .strokeMix = 0.25,
                            .envelope = {{180, -25}, {354, -21.5}, {400, -21}, {707, -24}, {900, -21.5},
                                         {1414, -19}, {2000, -15.5}, {2828, -13}, {4000, -21.5},
                                         {5657, -30.5}, {9000, -34.5}}}},
    };
}

Stroke standardPress()
{
    return {.lengthMs = 230, .impacts = {
        {.atMs = 0, .speed = 1.3, .contactUs = 170,
         .rattle = {.count = 3, .spanMs = 4, .levelDb = -12},
         .friction = Friction{.delayMs = 0.1, .lengthMs = 5, .levelDb = -24, .cutoffHz = 5000},
         .drives = {{BankId::Lever, -3}, {BankId::Frame, -16}, {BankId::Deep, -12}},
         .directDb = 8.5},
        {.role = Role::Main, .atMs = 6, .contactUs = 90,
         .bounce = {.restitution = 0.12, .firstGapMs = 2.6},
         .rattle = {.count = 5, .spanMs = 3, .levelDb = -20},
         .drives = {{BankId::Crack, 4}, {BankId::Typebar, -8}, {BankId::Platen, 1}, {BankId::Frame, -5},
                    {BankId::Deep, -1}, {BankId::Carriage, -15}},
         .directDb = 22.5},
        {.atMs = 16, .speed = 0.75, .contactUs = 70,
         .bounce = {.restitution = 0.35, .firstGapMs = 1.6},
         .rattle = {.count = 3, .spanMs = 5, .levelDb = -10},
         .drives = {{BankId::Pawl, -11}, {BankId::Frame, -17}, {BankId::Carriage, -15}},
         .directDb = 2.5},
    }};
}

Stroke standardRelease()
{
    return {.lengthMs = 190, .impacts = {
        {.role = Role::Main, .atMs = 0, .speed = 0.6, .contactUs = 170,
         .bounce = {.restitution = 0.4, .firstGapMs = 2.4},
         .rattle = {.count = 6, .spanMs = 9, .levelDb = -11},
         .drives = {{BankId::Lever, -2}, {BankId::Frame, -12}, {BankId::Deep, -8},
                    {BankId::Typebar, -16}},
         .directDb = 8.5},
        {.atMs = 8.5, .speed = 0.6, .contactUs = 80,
         .bounce = {.restitution = 0.4, .firstGapMs = 1.8},
         .rattle = {.count = 4, .spanMs = 8, .levelDb = -10},
         .drives = {{BankId::Pawl, -12}, {BankId::Frame, -17}, {BankId::Carriage, -14}},
         .directDb = 0.5},
        // The type bar falls back on its rest.
        {.atMs = 32, .jitter = 0.08, .speed = 0.4, .contactUs = 160,
         .bounce = {.restitution = 0.45, .firstGapMs = 7},
         .rattle = {.count = 3, .spanMs = 6, .levelDb = -12},
         .drives = {{BankId::Lever, -4}, {BankId::Typebar, -12}, {BankId::Deep, -8}, {BankId::Frame, -18}},
         .directDb = 6},
    }};
}

Stroke spacePress()
{
    return {.lengthMs = 230, .impacts = {
        {.role = Role::Main, .atMs = 0, .speed = 0.9, .contactUs = 420,
         .bounce = {.restitution = 0.35, .firstGapMs = 2.2},
         .rattle = {.count = 6, .spanMs = 9, .levelDb = -13},
         .drives = {{BankId::Lever, 2}, {BankId::Deep, 4}, {BankId::Frame, -11}, {BankId::Carriage, -7}},
         .directDb = 10.5},
        {.atMs = 9, .speed = 0.9, .contactUs = 75,
         .bounce = {.restitution = 0.42, .firstGapMs = 2.4},
         .rattle = {.count = 4, .spanMs = 7, .levelDb = -9},
         .drives = {{BankId::Pawl, -5}, {BankId::Frame, -10}, {BankId::Carriage, -8}},
         .directDb = 6.5},
    }};
}

Stroke spaceRelease()
{
    return {.lengthMs = 190, .impacts = {
        {.role = Role::Main, .atMs = 0, .speed = 0.55, .contactUs = 340,
         .bounce = {.restitution = 0.4, .firstGapMs = 2.6},
         .rattle = {.count = 5, .spanMs = 9, .levelDb = -12},
         .drives = {{BankId::Lever, 1}, {BankId::Deep, 0}, {BankId::Frame, -13},
                    {BankId::Carriage, -13}},
         .directDb = 6.5},
        {.atMs = 10.5, .speed = 0.6, .contactUs = 85,
         .bounce = {.restitution = 0.4, .firstGapMs = 2},
         .rattle = {.count = 3, .spanMs = 6, .levelDb = -10},
         .drives = {{BankId::Pawl, -10}, {BankId::Frame, -15}}},
    }};
}

Stroke carriageReturn()
{
    return {.lengthMs = 950, .silenceDb = -80, .fadeMs = 200, .impacts = {
        {.role = Role::Main, .atMs = 0, .speed = 0.9, .contactUs = 200,
         .bounce = {.restitution = 0.35, .firstGapMs = 2.2},
         .rattle = {.count = 5, .spanMs = 6, .levelDb = -10},
         .drives = {{BankId::Lever, 0}, {BankId::Frame, -10}, {BankId::Deep, -3}, {BankId::Pawl, -12}},
         .directDb = 10.5},
        {.atMs = 2, .speed = 0.9, .contactUs = 60,
         .drives = {{BankId::Bell, -2}}},
        {.atMs = 16, .jitter = 0.03, .speed = 0.8, .contactUs = 90,
         .bounce = {.restitution = 0.4, .firstGapMs = 1.8},
         .rattle = {.count = 3, .spanMs = 5, .levelDb = -9},
         .drives = {{BankId::Pawl, -8}, {BankId::Frame, -13}, {BankId::Carriage, -10}}},
        {.atMs = 27, .jitter = 0.03, .speed = 0.8, .contactUs = 90,
         .bounce = {.restitution = 0.4, .firstGapMs = 1.8},
         .rattle = {.count = 3, .spanMs = 5, .levelDb = -9},
         .drives = {{BankId::Pawl, -8}, {BankId::Frame, -13}, {BankId::Carriage, -10}}},
        {.atMs = 306, .jitter = 0.012, .speed = 1.5, .contactUs = 300,
         .bounce = {.restitution = 0.4, .firstGapMs = 6.5},
         .rattle = {.count = 8, .spanMs = 16, .levelDb = -11},
         .drives = {{BankId::Carriage, 3}, {BankId::Deep, 3}, {BankId::Frame, -7}, {BankId::Pawl, -13}},
         .directDb = 10.5},
    }};
}

Stroke enterRelease()
{
    return {.lengthMs = 190, .impacts = {
        {.role = Role::Main, .atMs = 0, .speed = 0.6, .contactUs = 260,
         .bounce = {.restitution = 0.42, .firstGapMs = 2.8},
         .rattle = {.count = 6, .spanMs = 10, .levelDb = -11},
         .drives = {{BankId::Lever, 0}, {BankId::Frame, -12}, {BankId::Deep, -6},
                    {BankId::Carriage, -12}},
         .directDb = 6.5},
        {.atMs = 9, .speed = 0.5, .contactUs = 90, .bounce = {.restitution = 0.4, .firstGapMs = 2},
         .rattle = {.count = 3, .spanMs = 6, .levelDb = -10},
         .drives = {{BankId::Pawl, -9}, {BankId::Frame, -14}}},
    }};
}

Stroke backPress()
{
    return {.lengthMs = 230, .impacts = {
        {.atMs = 0, .speed = 0.8, .contactUs = 300, .bounce = {.restitution = 0.3, .firstGapMs = 2},
         .rattle = {.count = 4, .spanMs = 5, .levelDb = -11},
         .drives = {{BankId::Lever, -1}, {BankId::Deep, -3}, {BankId::Frame, -13}},
         .directDb = 9.5},
        {.role = Role::Main, .atMs = 5.5, .speed = 0.9, .contactUs = 85,
         .bounce = {.restitution = 0.45, .firstGapMs = 3},
         .rattle = {.count = 5, .spanMs = 6, .levelDb = -9},
         .drives = {{BankId::Pawl, -1}, {BankId::Frame, -6}, {BankId::Carriage, -3}},
         .directDb = 12.5},
        {.atMs = 17, .speed = 0.7, .contactUs = 90, .bounce = {.restitution = 0.4, .firstGapMs = 2},
         .rattle = {.count = 3, .spanMs = 6, .levelDb = -10},
         .drives = {{BankId::Pawl, -7}, {BankId::Frame, -11}, {BankId::Carriage, -6}}},
    }};
}

Stroke backRelease()
{
    return {.lengthMs = 190, .impacts = {
        {.role = Role::Main, .atMs = 0, .speed = 0.55, .contactUs = 260,
         .bounce = {.restitution = 0.4, .firstGapMs = 2.4},
         .rattle = {.count = 5, .spanMs = 9, .levelDb = -11},
         .drives = {{BankId::Lever, -1}, {BankId::Frame, -12}, {BankId::Deep, -7}},
         .directDb = 6.5},
        {.atMs = 7, .speed = 0.6, .contactUs = 80, .bounce = {.restitution = 0.4, .firstGapMs = 2},
         .rattle = {.count = 4, .spanMs = 6, .levelDb = -9},
         .drives = {{BankId::Pawl, -8}, {BankId::Frame, -13}, {BankId::Carriage, -12}}},
    }};
}

// clang-format on

} // namespace

/// A thump of the key lever, 6 ms later the type slug on paper and hard rubber, then the tick of the escapement.
/// Enter returns the carriage: bell, line feed, ratchet, end stop.
Pack typewriter()
{
    return {
        .stream = "typewriter",
        .folder = "typewriter",
        .title = "Typewriter",
        .speedSpread = 0.07,
        .roomDb = -27,
        .earlyDb = 1,
        .highPassHz = 55,
        .levels = kTypewriterLevels,
        .banks = banks(),
        .strokes =
            {
                {{Key::Standard, Action::Press}, standardPress()},
                {{Key::Standard, Action::Release}, standardRelease()},
                {{Key::Space, Action::Press}, spacePress()},
                {{Key::Space, Action::Release}, spaceRelease()},
                {{Key::Enter, Action::Press}, withRatchet(carriageReturn())},
                {{Key::Enter, Action::Release}, enterRelease()},
                {{Key::Back, Action::Press}, backPress()},
                {{Key::Back, Action::Release}, backRelease()},
            },
    };
}

} // namespace tocca::soundpack

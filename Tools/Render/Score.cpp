#include "Render/Score.h"

#include "Platform/KeyCodes.h"
#include "Render/SeededRandom.h"
#include "Support/LowerCase.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <sstream>
#include <string>
#include <utility>

namespace tocca::render {

namespace {

namespace key = platform::key;

constexpr double kHoldSeconds = 0.08;
constexpr double kLongestSeconds = 3600.0;

constexpr std::array<std::pair<char, std::uint16_t>, 47> kCharacters{{
    {'a', key::kA},         {'b', key::kB},      {'c', key::kC},           {'d', key::kD},
    {'e', key::kE},         {'f', key::kF},      {'g', key::kG},           {'h', key::kH},
    {'i', key::kI},         {'j', key::kJ},      {'k', key::kK},           {'l', key::kL},
    {'m', key::kM},         {'n', key::kN},      {'o', key::kO},           {'p', key::kP},
    {'q', key::kQ},         {'r', key::kR},      {'s', key::kS},           {'t', key::kT},
    {'u', key::kU},         {'v', key::kV},      {'w', key::kW},           {'x', key::kX},
    {'y', key::kY},         {'z', key::kZ},      {'0', key::k0},           {'1', key::k1},
    {'2', key::k2},         {'3', key::k3},      {'4', key::k4},           {'5', key::k5},
    {'6', key::k6},         {'7', key::k7},      {'8', key::k8},           {'9', key::k9},
    {'-', key::kMinus},     {'=', key::kEqual},  {'[', key::kLeftBracket}, {']', key::kRightBracket},
    {';', key::kSemicolon}, {'\'', key::kQuote}, {',', key::kComma},       {'.', key::kPeriod},
    {'/', key::kSlash},     {' ', key::kSpace},  {'\n', key::kReturn},
}};

constexpr std::array<std::pair<std::string_view, std::uint16_t>, 6> kNames{{{"space", key::kSpace},
                                                                            {"enter", key::kReturn},
                                                                            {"return", key::kReturn},
                                                                            {"backspace", key::kDelete},
                                                                            {"tab", key::kTab},
                                                                            {"shift", key::kLeftShift}}};

} // namespace

std::optional<std::uint16_t> keyNamed(std::string_view name)
{
    const std::string lower = lowerCased(name);
    if (lower.size() == 1) {
        const auto found = std::find_if(kCharacters.begin(), kCharacters.end(),
                                        [&](const auto& row) { return row.first == lower.front(); });
        return found != kCharacters.end() ? std::optional(found->second) : std::nullopt;
    }
    const auto found =
        std::find_if(kNames.begin(), kNames.end(), [&](const auto& row) { return row.first == lower; });
    return found != kNames.end() ? std::optional(found->second) : std::nullopt;
}

std::vector<ScoredStroke> typed(std::string_view text, double wordsPerMinute, std::uint64_t seed)
{
    constexpr double kCharactersPerWord = 5.0;
    constexpr double kUnevenness = 0.35;
    const double interval = 60.0 / (wordsPerMinute * kCharactersPerWord);
    SeededRandom random(seed);
    std::vector<ScoredStroke> strokes;
    double time = 0.1;
    for (const char character : text) {
        if (const auto code = keyNamed(std::string_view(&character, 1))) {
            strokes.push_back({.time = time, .keyCode = *code, .action = audio::KeyStrokeAction::down});
            strokes.push_back(
                {.time = time + kHoldSeconds, .keyCode = *code, .action = audio::KeyStrokeAction::up});
            time += interval * (1.0 + kUnevenness * (2.0 * random.share() - 1.0));
        }
    }
    std::stable_sort(strokes.begin(), strokes.end(),
                     [](const auto& a, const auto& b) { return a.time < b.time; });
    return strokes;
}

Result<std::vector<ScoredStroke>> parseScore(std::string_view lines)
{
    std::vector<ScoredStroke> strokes;
    std::istringstream all{std::string(lines)};
    std::string line;
    for (int number = 1; std::getline(all, line); ++number) {
        std::istringstream words(line);
        std::string first;
        if (!(words >> first) || first.starts_with('#')) {
            continue;
        }
        std::istringstream digits(first);
        double time = 0.0;
        std::string name;
        std::string action;
        const bool hasTime =
            static_cast<bool>(digits >> time) && digits.eof() && time >= 0.0 && time <= kLongestSeconds;
        const bool hasKey = static_cast<bool>(words >> name) && keyNamed(name).has_value();
        const bool hasAction = !(words >> action) || action == "up" || action == "down";
        if (!hasTime || !hasKey || !hasAction) {
            return Error{"line " + std::to_string(number) +
                         " is not a time in seconds, a key and perhaps \"up\""};
        }
        strokes.push_back(
            {.time = time,
             .keyCode = *keyNamed(name),
             .action = action == "up" ? audio::KeyStrokeAction::up : audio::KeyStrokeAction::down});
    }
    std::stable_sort(strokes.begin(), strokes.end(),
                     [](const auto& a, const auto& b) { return a.time < b.time; });
    return strokes;
}

} // namespace tocca::render

#include "UI/Studio/Showroom/SwitchTraits.h"

#include "Support/LowerCase.h"

#include <algorithm>
#include <array>
#include <string>

namespace tocca::ui {
namespace {

/// A word in a name and what it tells.
struct Sign {
    std::string_view word;
    std::string_view trait;
};

// The first sign that a name shows counts.
constexpr auto kTags = std::to_array<Sign>({
    {.word = "blue", .trait = "Clicky"},
    {.word = "box white", .trait = "Clicky"},
    {.word = "model m", .trait = "Clicky"},
    {.word = "buckling", .trait = "Clicky"},
    {.word = "panda", .trait = "Tactile"},
    {.word = "topre", .trait = "Tactile"},
    {.word = "brown", .trait = "Tactile"},
    {.word = "oreo", .trait = "Tactile"},
    {.word = "purple", .trait = "Tactile"},
    {.word = "cream", .trait = "Linear"},
    {.word = "tealios", .trait = "Linear"},
    {.word = "black", .trait = "Linear"},
    {.word = "red", .trait = "Linear"},
    {.word = "apex", .trait = "Linear"},
    {.word = "typewriter", .trait = "Vintage"},
});

constexpr auto kWeights = std::to_array<Sign>({
    {.word = "topre", .trait = "45cN"},
    {.word = "panda", .trait = "67g"},
    {.word = "box white", .trait = "50g"},
    {.word = "cream", .trait = "55g"},
    {.word = "model m", .trait = "70g"},
    {.word = "blue", .trait = "50g"},
    {.word = "red", .trait = "45g"},
    {.word = "black", .trait = "55g"},
});

constexpr auto kProfiles = std::to_array<Sign>({
    {.word = "topre", .trait = "Electro-Capacitive"},
    {.word = "model m", .trait = "Buckling Spring"},
    {.word = "box white", .trait = "Clickbar"},
    {.word = "cream", .trait = "POM Stem"},
    {.word = "panda", .trait = "Halo Stem"},
});

template <class Signs>
std::string_view firstTrait(const Signs& signs, std::string_view name, std::string_view otherwise)
{
    const std::string lower = lowerCased(name);
    const auto sign = std::find_if(signs.begin(), signs.end(), [&lower](const Sign& candidate) {
        return lower.find(candidate.word) != std::string::npos;
    });
    return sign == signs.end() ? otherwise : sign->trait;
}

} // namespace

std::string_view getTag(std::string_view name)
{
    return firstTrait(kTags, name, "Novelty");
}

std::string_view getWeight(std::string_view name)
{
    return firstTrait(kWeights, name, "60g");
}

std::string_view getProfile(std::string_view name)
{
    return firstTrait(kProfiles, name, "Cherry MX");
}

} // namespace tocca::ui

#include "Audio/AcousticCatalogues.h"
#include "Audio/SoundProfile.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace tocca::audio {
namespace {

TEST(KeyCategory, ClassifiesEveryCode)
{
    const std::map<KeyCategory::Value, std::set<int>> expected{
        {KeyCategory::spacebar, {49}},
        {KeyCategory::enter, {36, 76}},
        {KeyCategory::backspace, {51, 117}},
        {KeyCategory::modifier, {48, 53, 54, 55, 56, 57, 58, 59, 60, 61, 62}},
    };
    std::map<KeyCategory::Value, std::set<int>> found;
    for (int code = 0; code <= 0xFFFF; ++code) {
        if (const auto category = KeyCategory::from(static_cast<std::uint16_t>(code));
            category != KeyCategory::standard) {
            found[category].insert(code);
        }
    }
    EXPECT_EQ(found, expected);
}

TEST(KeyCategory, PlacesEveryCodeInTheStereoField)
{
    const std::map<float, std::set<int>> expected{
        {-0.55F, {0, 6, 12, 18, 19, 48, 50, 56, 57, 59}},
        {-0.28F, {1, 2, 7, 8, 13, 14, 20, 21}},
        {+0.28F, {26, 28, 32, 34, 38, 40, 46}},
        {+0.55F, {24, 27, 30, 31, 33, 35, 36, 37, 39, 41, 42, 51, 60, 76, 117}},
    };
    std::map<float, std::set<int>> found;
    for (int code = 0; code <= 0xFFFF; ++code) {
        if (const float pan = KeyCategory::spatialPan(static_cast<std::uint16_t>(code)); pan != 0.0F) {
            found[pan].insert(code);
        }
    }
    EXPECT_EQ(found, expected);
}

TEST(Catalogues, MapOnlyExactRawValuesBack)
{
    for (const SwitchType type : SwitchType::allCases) {
        EXPECT_EQ(SwitchType::fromRawValue(type.rawValue()), type);
        EXPECT_EQ(SwitchType::fromRawValue(type.folderName()), std::nullopt);
    }
    for (const AcousticDeskSurface surface : AcousticDeskSurface::allCases) {
        EXPECT_EQ(AcousticDeskSurface::fromRawValue(surface.rawValue()), surface);
    }
    for (const MouseSwitchProfile profile : MouseSwitchProfile::allCases) {
        EXPECT_EQ(MouseSwitchProfile::fromRawValue(profile.rawValue()), profile);
        EXPECT_EQ(MouseSwitchProfile::fromRawValue(profile.stem()), std::nullopt);
    }
    EXPECT_EQ(SwitchType::fromRawValue("holy panda"), std::nullopt);
    EXPECT_EQ(SwitchType::fromRawValue("Typewriter "), std::nullopt);
}

} // namespace
} // namespace tocca::audio

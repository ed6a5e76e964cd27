#include "Audio/AcousticCatalogues.h"
#include "Audio/SoundProfile.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <initializer_list>
#include <unordered_set>

namespace tocca::audio {
namespace {

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

template <class Key>
std::size_t distinct(std::initializer_list<Key> keys)
{
    return std::unordered_set<Key>(keys).size();
}

TEST(Catalogues, AreKeysOfTables)
{
    EXPECT_EQ(distinct<SwitchType>({SwitchType::nkCream, SwitchType::typewriter, SwitchType::nkCream}), 2U);
    EXPECT_EQ(
        distinct<AcousticDeskSurface>({AcousticDeskSurface::cleanStudio, AcousticDeskSurface::gasketPoron}),
        2U);
    EXPECT_EQ(distinct<MouseSwitchProfile>({MouseSwitchProfile::omron50M, MouseSwitchProfile::omron50M}), 1U);
    EXPECT_EQ(distinct<KeyCategory>({KeyCategory::enter, KeyCategory::from(36), KeyCategory::from(49)}), 2U);
    EXPECT_EQ(distinct<KeyStrokeAction>({KeyStrokeAction::down, KeyStrokeAction::up}), 2U);
    EXPECT_EQ(distinct<MouseButton>({MouseButton::left, MouseButton::right, MouseButton::other}), 3U);
}

} // namespace
} // namespace tocca::audio

#include "Audio/AcousticCatalogues.h"
#include "Audio/SoundProfile.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace tocca::audio

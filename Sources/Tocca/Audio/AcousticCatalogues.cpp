#include "Audio/AcousticCatalogues.h"

#include <algorithm>

namespace tocca::audio {

namespace {

struct SurfaceRow {
    std::string_view rawValue;
    std::string_view description;
    float gain;
    float rate;
};

constexpr std::array<SurfaceRow, AcousticDeskSurface::allCases.size()> kSurfaces{{
    {.rawValue = "Clean Studio (Raw)",
     .description = "Pure uncolored mechanical switch acoustics",
     .gain = 1.0F,
     .rate = 1.0F},
    {.rawValue = "4mm Felt Deskmat (Thock)",
     .description = "Deep bass absorption with muted high-pitch clack",
     .gain = 1.04F,
     .rate = 0.98F},
    {.rawValue = "Hardwood Desk (Crisp)",
     .description = "Snappy acoustic bounce with crisp transients",
     .gain = 1.02F,
     .rate = 1.03F},
    {.rawValue = "Gasket Poron Foam (Creamy)",
     .description = "Dampened modern custom keyboard sound",
     .gain = 0.98F,
     .rate = 0.97F},
}};

struct ProfileRow {
    std::string_view rawValue;
    std::string_view description;
    std::string_view stem;
};

constexpr std::array<ProfileRow, MouseSwitchProfile::allCases.size()> kProfiles{{
    {.rawValue = "Kailh GM 8.0 Black Mamba",
     .description = "Crisp, snappy high-tactile esports microswitch",
     .stem = "kailhGM8"},
    {.rawValue = "Omron 50M Blue",
     .description = "Light, responsive classic office snap",
     .stem = "omron50M"},
    {.rawValue = "Silent Studio Optical",
     .description = "Dampened, gentle studio tap",
     .stem = "silentOptical"},
}};

template <class Catalogue>
std::optional<Catalogue> findRawValue(std::string_view rawValue) noexcept
{
    const auto found = std::find_if(Catalogue::allCases.begin(), Catalogue::allCases.end(),
                                    [rawValue](Catalogue value) { return value.rawValue() == rawValue; });
    return found == Catalogue::allCases.end() ? std::nullopt : std::optional<Catalogue>(*found);
}

} // namespace

std::optional<AcousticDeskSurface> AcousticDeskSurface::fromRawValue(std::string_view rawValue) noexcept
{
    return findRawValue<AcousticDeskSurface>(rawValue);
}

std::string_view AcousticDeskSurface::rawValue() const noexcept
{
    return kSurfaces[value_].rawValue;
}

std::string_view AcousticDeskSurface::description() const noexcept
{
    return kSurfaces[value_].description;
}

float AcousticDeskSurface::deskGain() const noexcept
{
    return kSurfaces[value_].gain;
}

float AcousticDeskSurface::deskRate() const noexcept
{
    return kSurfaces[value_].rate;
}

std::optional<MouseSwitchProfile> MouseSwitchProfile::fromRawValue(std::string_view rawValue) noexcept
{
    return findRawValue<MouseSwitchProfile>(rawValue);
}

std::string_view MouseSwitchProfile::rawValue() const noexcept
{
    return kProfiles[value_].rawValue;
}

std::string_view MouseSwitchProfile::description() const noexcept
{
    return kProfiles[value_].description;
}

std::string_view MouseSwitchProfile::stem() const noexcept
{
    return kProfiles[value_].stem;
}

} // namespace tocca::audio

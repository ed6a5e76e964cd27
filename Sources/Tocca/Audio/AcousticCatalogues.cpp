#include "Audio/AcousticCatalogues.h"

namespace tocca::audio {

constexpr std::array<AcousticDeskSurface::Row, AcousticDeskSurface::allCases.size()>
    AcousticDeskSurface::rows{{
        {"Clean Studio (Raw)", "Pure uncolored mechanical switch acoustics", 1.0F, 1.0F},
        {"4mm Felt Deskmat (Thock)", "Deep bass absorption with muted high-pitch clack", 1.04F, 0.98F},
        {"Hardwood Desk (Crisp)", "Snappy acoustic bounce with crisp transients", 1.02F, 1.03F},
        {"Gasket Poron Foam (Creamy)", "Dampened modern custom keyboard sound", 0.98F, 0.97F},
    }};

constexpr std::array<MouseSwitchProfile::Row, MouseSwitchProfile::allCases.size()> MouseSwitchProfile::rows{{
    {"Kailh GM 8.0 Black Mamba", "Crisp, snappy high-tactile esports microswitch", "kailhGM8"},
    {"Omron 50M Blue", "Light, responsive classic office snap", "omron50M"},
    {"Silent Studio Optical", "Dampened, gentle studio tap", "silentOptical"},
}};

} // namespace tocca::audio

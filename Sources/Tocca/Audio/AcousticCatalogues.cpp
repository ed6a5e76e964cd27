#include "Audio/AcousticCatalogues.h"

namespace tocca::audio {

constexpr std::array<AcousticDeskSurface::Row, AcousticDeskSurface::allCases.size()>
    AcousticDeskSurface::rows{{
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

constexpr std::array<MouseSwitchProfile::Row, MouseSwitchProfile::allCases.size()> MouseSwitchProfile::rows{{
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

} // namespace tocca::audio

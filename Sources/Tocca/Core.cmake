find_package(PkgConfig REQUIRED)
find_package(simdjson REQUIRED)
pkg_check_modules(jsoncpp REQUIRED IMPORTED_TARGET jsoncpp)

app_module(tocca_core
    UNITS
        App/AppDelegate
        App/LaunchAtLogin
        App/MainMenuTable
        App/SensitiveApplications
        App/SmartMuteManager
        App/StatusIcon
        Audio/AcousticCatalogues
        Audio/AudioEngine
        Audio/PeripheralSynthesis
        Audio/SoundProfile
        Audio/SoundSlot
        Audio/StrokeShaping
        Audio/WavImage
        Audio/Conversion/ArchiveUnpacking
        Audio/Conversion/ForeignJson
        Audio/Conversion/KeyRole
        Audio/Conversion/PackChoice
        Audio/Conversion/PackConverter
        Audio/Conversion/PackIntake
        Audio/Conversion/SourceTree
        Audio/Conversion/Strike
        Audio/Conversion/StrikeSelection
        Audio/Conversion/Formats/Formats
        Audio/Packs/PackImporter
        Audio/Packs/PackLibrary
        Audio/Packs/PackManifest
        Audio/Packs/PackStaging
        Audio/Packs/SoundPackLoader
        Keyboard/KeyboardMonitor
        UI/Controllers
        UI/SwitchSelection
        UI/ViewFactory
        UI/NotchHUD/NotchAcousticHUDController
        UI/Popover/Packs/PackImport
        UI/Studio/StudioText
        UI/Studio/Showroom/ShowroomCatalogue
        UI/Studio/Showroom/ShowroomItem
        UI/Studio/Showroom/SwitchTraits
        UI/Studio/Sidebar/StudioTab
        UI/Studio/Stage/VisualKey
        UI/Studio/WindowMenu/KeyEquivalentText
        UI/Underglow/SpatialUnderglowController
        UI/Underglow/UnderglowTheme
    SOURCES
        Audio/Conversion/Formats/KeyDefinitions.cpp
        Audio/Conversion/Formats/RoleFolders.cpp
        Audio/Conversion/Formats/SoundMap.cpp
    HEADERS
        Audio/AudioSettings.h
        Audio/CatalogueCase.h
        Audio/PlayerPool.h
        Audio/RandomDraws.h
        Audio/Conversion/ConversionPlan.h
        Audio/Conversion/ImportWatch.h
        Audio/Conversion/Refusal.h
        Audio/Packs/PackImportError.h
        Audio/Packs/SoundPackInfo.h
        Keyboard/Debouncer.h
        Keyboard/TypingSpeed.h
        UI/Pages.h
        UI/StudioTheme.h
        UI/NotchHUD/Waveform.h
        UI/Underglow/Glow.h
    DEPENDS tocca_platform
    PRIVATE_DEPENDS PkgConfig::jsoncpp simdjson::simdjson)
app_precompile(tocca_core <algorithm> <filesystem> <functional> <map> <memory> <optional> <string> <vector>)

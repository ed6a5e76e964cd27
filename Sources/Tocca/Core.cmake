find_package(simdjson REQUIRED)

app_module(tocca_core
    SOURCES
        App/LaunchAtLogin.cpp
        App/SensitiveApplications.cpp
        App/SmartMuteManager.cpp
        Audio/AcousticCatalogues.cpp
        Audio/AudioEngine.cpp
        Audio/PackImporter.cpp
        Audio/PackLibrary.cpp
        Audio/PackManifest.cpp
        Audio/PackStaging.cpp
        Audio/PeripheralSynthesis.cpp
        Audio/SoundPackLoader.cpp
        Audio/SoundProfile.cpp
        Audio/SoundSlot.cpp
        Audio/StrokeShaping.cpp
        Keyboard/KeyboardMonitor.cpp
        Keyboard/TypingSpeed.cpp
        UI/ViewFactory.cpp
    HEADERS
        App/LaunchAtLogin.h
        App/SensitiveApplications.h
        App/SmartMuteManager.h
        Audio/AcousticCatalogues.h
        Audio/AudioEngine.h
        Audio/AudioSettings.h
        Audio/PackImportError.h
        Audio/PackImporter.h
        Audio/PackLibrary.h
        Audio/PackManifest.h
        Audio/PackStaging.h
        Audio/PeripheralSynthesis.h
        Audio/PlayerPool.h
        Audio/RandomDraws.h
        Audio/SoundPackInfo.h
        Audio/SoundPackLoader.h
        Audio/SoundProfile.h
        Audio/SoundSlot.h
        Audio/StrokeShaping.h
        Keyboard/Debouncer.h
        Keyboard/KeyboardMonitor.h
        Keyboard/TypingSpeed.h
        UI/StudioTheme.h
        UI/ViewFactory.h
    DEPENDS tocca_platform
    PRIVATE_DEPENDS simdjson::simdjson)

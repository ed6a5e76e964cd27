app_module(tocca_player_interface
    HEADERS
        Player/AudioOutput.h
        Player/RenderSource.h
    DEPENDS tocca_platform)

find_package(PkgConfig REQUIRED)
pkg_check_modules(sndfile REQUIRED IMPORTED_TARGET sndfile)
pkg_check_modules(soxr REQUIRED IMPORTED_TARGET soxr)

# What depends on the processor is chosen here, by file, so that no source needs a condition.
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64)$")
    set(processor_sources Player/X86/BestSincKernel.cpp Player/X86/DenormalGuard.cpp Player/X86/SincKernelAvx2.cpp)
    set_source_files_properties(Player/X86/SincKernelAvx2.cpp PROPERTIES COMPILE_OPTIONS "-mavx2;-mfma")
else()
    set(processor_sources Player/Portable/BestSincKernel.cpp Player/Portable/DenormalGuard.cpp)
endif()

app_module(tocca_player
    SOURCES
        Player/Decoder.cpp
        Player/Downmix.cpp
        Player/Limiter.cpp
        Player/Mixdown.cpp
        Player/Mixer.cpp
        Player/MixerAudioPlayer.cpp
        Player/MixerAudioPlayers.cpp
        Player/PcmCache.cpp
        Player/PcmClip.cpp
        Player/Resampler.cpp
        Player/SincKernel.cpp
        Player/SincTable.cpp
        Player/SoundFile.cpp
        Player/SoundFormat.cpp
        Player/TruePeak.cpp
        Player/Voice.cpp
        Player/VoiceExchange.cpp
        Player/VoiceList.cpp
        ${processor_sources}
    HEADERS
        Player/Decoder.h
        Player/DenormalGuard.h
        Player/Downmix.h
        Player/Limiter.h
        Player/Mixdown.h
        Player/Mixer.h
        Player/MixerAudioPlayer.h
        Player/MixerAudioPlayers.h
        Player/MixerStatistics.h
        Player/PcmCache.h
        Player/PcmClip.h
        Player/Resampler.h
        Player/SincKernel.h
        Player/SincKernelBody.h
        Player/SincTable.h
        Player/SoundFile.h
        Player/SoundFormat.h
        Player/StrokeTrace.h
        Player/TruePeak.h
        Player/Voice.h
        Player/VoiceExchange.h
        Player/VoiceList.h
        Player/VoiceRequest.h
        Player/X86/SincKernelAvx2.h
    DEPENDS tocca_player_interface tocca_platform tocca_support
    PRIVATE_DEPENDS PkgConfig::sndfile PkgConfig::soxr)

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
    set(processor_sources Player/Mixing/X86/BestSincKernel.cpp Player/Mixing/X86/DenormalGuard.cpp Player/Mixing/X86/SincKernelAvx2.cpp)
    set_source_files_properties(Player/Mixing/X86/SincKernelAvx2.cpp PROPERTIES COMPILE_OPTIONS "-mavx2;-mfma")
else()
    set(processor_sources Player/Mixing/Portable/BestSincKernel.cpp Player/Mixing/Portable/DenormalGuard.cpp)
endif()

app_module(tocca_player
    SOURCES
        Player/MixerAudioPlayer.cpp
        Player/MixerAudioPlayers.cpp
        Player/Decoding/Decoder.cpp
        Player/Decoding/Downmix.cpp
        Player/Decoding/PcmCache.cpp
        Player/Decoding/PcmClip.cpp
        Player/Decoding/Resampler.cpp
        Player/Decoding/SoundFile.cpp
        Player/Decoding/SoundFormat.cpp
        Player/Mixing/Limiter.cpp
        Player/Mixing/Mixdown.cpp
        Player/Mixing/Mixer.cpp
        Player/Mixing/SincKernel.cpp
        Player/Mixing/SincTable.cpp
        Player/Mixing/TruePeak.cpp
        Player/Mixing/Voice.cpp
        Player/Mixing/VoiceExchange.cpp
        Player/Mixing/VoiceList.cpp
        ${processor_sources}
    HEADERS
        Player/MixerAudioPlayer.h
        Player/MixerAudioPlayers.h
        Player/Decoding/Decoder.h
        Player/Decoding/Downmix.h
        Player/Decoding/PcmCache.h
        Player/Decoding/PcmClip.h
        Player/Decoding/Resampler.h
        Player/Decoding/SoundFile.h
        Player/Decoding/SoundFormat.h
        Player/Mixing/DenormalGuard.h
        Player/Mixing/Limiter.h
        Player/Mixing/Mixdown.h
        Player/Mixing/Mixer.h
        Player/Mixing/MixerStatistics.h
        Player/Mixing/SincKernel.h
        Player/Mixing/SincKernelBody.h
        Player/Mixing/SincTable.h
        Player/Mixing/StrokeTrace.h
        Player/Mixing/TruePeak.h
        Player/Mixing/Voice.h
        Player/Mixing/VoiceExchange.h
        Player/Mixing/VoiceList.h
        Player/Mixing/VoiceRequest.h
        Player/Mixing/X86/SincKernelAvx2.h
    DEPENDS tocca_player_interface tocca_platform tocca_support
    PRIVATE_DEPENDS PkgConfig::sndfile PkgConfig::soxr)

app_module(tocca_player_interface
    HEADERS Player/AudioOutput.h Player/RenderSource.h
    DEPENDS tocca_platform)

find_package(PkgConfig REQUIRED)
pkg_check_modules(mpg123 REQUIRED IMPORTED_TARGET libmpg123)
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
    UNITS
        Player/MixerAudioPlayers
        Player/Decoding/Decoder
        Player/Decoding/Downmix
        Player/Decoding/FileSoundDecoder
        Player/Decoding/Mp3Stream
        Player/Decoding/PcmCache
        Player/Decoding/PcmClip
        Player/Decoding/Resampler
        Player/Decoding/SoundFile
        Player/Decoding/SoundFormat
        Player/Mixing/Limiter
        Player/Mixing/Mixdown
        Player/Mixing/Mixer
        Player/Mixing/SincKernel
        Player/Mixing/SincTable
        Player/Mixing/TruePeak
        Player/Mixing/Voice
        Player/Mixing/VoiceExchange
        Player/Mixing/VoiceList
    SOURCES ${processor_sources}
    HEADERS
        Player/Mixing/DenormalGuard.h
        Player/Mixing/Four.h
        Player/Mixing/SincKernelBody.h
        Player/Mixing/StrokeTrace.h
        Player/Mixing/VoiceRequest.h
        Player/Mixing/X86/SincKernelAvx2.h
    DEPENDS tocca_player_interface tocca_platform tocca_support
    PRIVATE_DEPENDS PkgConfig::mpg123 PkgConfig::sndfile PkgConfig::soxr)

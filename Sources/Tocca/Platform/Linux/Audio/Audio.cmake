find_package(PkgConfig REQUIRED)
pkg_check_modules(PIPEWIRE REQUIRED IMPORTED_TARGET libpipewire-0.3)
pkg_check_modules(PULSE REQUIRED IMPORTED_TARGET libpulse)

app_module(tocca_linux_audio
    UNITS
        Platform/Linux/Audio/ControlLoop
        Platform/Linux/Audio/LinuxAudioDevices
        Platform/Linux/Audio/LinuxAudioOutput
        Platform/Linux/Audio/OutputMeter
        Platform/Linux/Audio/SocketWatch
        Platform/Linux/Audio/PipeWire/ActivityGate
        Platform/Linux/Audio/PipeWire/CaptureGraph
        Platform/Linux/Audio/PipeWire/PipeWireConnection
        Platform/Linux/Audio/PipeWire/PipeWireDevices
        Platform/Linux/Audio/PipeWire/PipeWireOutput
        Platform/Linux/Audio/PipeWire/PipeWireStream
        Platform/Linux/Audio/PipeWire/QuantumGovernor
        Platform/Linux/Audio/PulseAudio/PulseDevices
        Platform/Linux/Audio/PulseAudio/PulseLoop
        Platform/Linux/Audio/PulseAudio/PulseOutput
    HEADERS
        Platform/Linux/Audio/BlockClock.h
        Platform/Linux/Audio/DeviceServer.h
        Platform/Linux/Audio/ProgressWatch.h
        Platform/Linux/Audio/ServerLink.h
        Platform/Linux/Audio/ServerOutput.h
    DEPENDS tocca_platform tocca_linux_system
    PRIVATE_DEPENDS PkgConfig::PIPEWIRE PkgConfig::PULSE)

# PipeWire's method calls are macros with casts of C.
set_source_files_properties(Platform/Linux/Audio/PipeWire/PipeWireConnection.cpp Platform/Linux/Audio/PipeWire/PipeWireDevices.cpp
    PROPERTIES COMPILE_OPTIONS -Wno-old-style-cast)

find_package(PkgConfig REQUIRED)
pkg_check_modules(PIPEWIRE REQUIRED IMPORTED_TARGET libpipewire-0.3)
pkg_check_modules(PULSE REQUIRED IMPORTED_TARGET libpulse)

app_module(tocca_linux_audio
    SOURCES
        Platform/Linux/Audio/ControlLoop.cpp
        Platform/Linux/Audio/LinuxAudioDevices.cpp
        Platform/Linux/Audio/LinuxAudioOutput.cpp
        Platform/Linux/Audio/OutputMeter.cpp
        Platform/Linux/Audio/SocketWatch.cpp
        Platform/Linux/Audio/PipeWire/ActivityGate.cpp
        Platform/Linux/Audio/PipeWire/CaptureGraph.cpp
        Platform/Linux/Audio/PipeWire/PipeWireConnection.cpp
        Platform/Linux/Audio/PipeWire/PipeWireDevices.cpp
        Platform/Linux/Audio/PipeWire/PipeWireOutput.cpp
        Platform/Linux/Audio/PipeWire/PipeWireStream.cpp
        Platform/Linux/Audio/PipeWire/QuantumGovernor.cpp
        Platform/Linux/Audio/PulseAudio/PulseDevices.cpp
        Platform/Linux/Audio/PulseAudio/PulseLoop.cpp
        Platform/Linux/Audio/PulseAudio/PulseOutput.cpp
    HEADERS
        Platform/Linux/Audio/BlockClock.h
        Platform/Linux/Audio/ControlLoop.h
        Platform/Linux/Audio/DeviceServer.h
        Platform/Linux/Audio/LinuxAudioDevices.h
        Platform/Linux/Audio/LinuxAudioOutput.h
        Platform/Linux/Audio/OutputMeter.h
        Platform/Linux/Audio/ProgressWatch.h
        Platform/Linux/Audio/ServerOutput.h
        Platform/Linux/Audio/SocketWatch.h
        Platform/Linux/Audio/PipeWire/ActivityGate.h
        Platform/Linux/Audio/PipeWire/CaptureGraph.h
        Platform/Linux/Audio/PipeWire/PipeWireConnection.h
        Platform/Linux/Audio/PipeWire/PipeWireDevices.h
        Platform/Linux/Audio/PipeWire/PipeWireOutput.h
        Platform/Linux/Audio/PipeWire/PipeWireStream.h
        Platform/Linux/Audio/PipeWire/QuantumGovernor.h
        Platform/Linux/Audio/PulseAudio/PulseDevices.h
        Platform/Linux/Audio/PulseAudio/PulseLoop.h
        Platform/Linux/Audio/PulseAudio/PulseOutput.h
    DEPENDS tocca_platform tocca_linux_system
    PRIVATE_DEPENDS PkgConfig::PIPEWIRE PkgConfig::PULSE)

# PipeWire's method calls are macros with casts of C.
set_source_files_properties(Platform/Linux/Audio/PipeWire/PipeWireConnection.cpp Platform/Linux/Audio/PipeWire/PipeWireDevices.cpp
    PROPERTIES COMPILE_OPTIONS -Wno-old-style-cast)

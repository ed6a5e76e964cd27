find_package(PkgConfig REQUIRED)
pkg_check_modules(PIPEWIRE REQUIRED IMPORTED_TARGET libpipewire-0.3)
pkg_check_modules(PULSE REQUIRED IMPORTED_TARGET libpulse)

app_module(tocca_linux_audio
    SOURCES
        Platform/Linux/Audio/ActivityGate.cpp
        Platform/Linux/Audio/CaptureGraph.cpp
        Platform/Linux/Audio/ControlLoop.cpp
        Platform/Linux/Audio/LinuxAudioDevices.cpp
        Platform/Linux/Audio/LinuxAudioOutput.cpp
        Platform/Linux/Audio/OutputMeter.cpp
        Platform/Linux/Audio/PipeWireConnection.cpp
        Platform/Linux/Audio/PipeWireDevices.cpp
        Platform/Linux/Audio/PipeWireOutput.cpp
        Platform/Linux/Audio/PipeWireStream.cpp
        Platform/Linux/Audio/PulseDevices.cpp
        Platform/Linux/Audio/PulseLoop.cpp
        Platform/Linux/Audio/PulseOutput.cpp
        Platform/Linux/Audio/QuantumGovernor.cpp
        Platform/Linux/Audio/SocketWatch.cpp
    HEADERS
        Platform/Linux/Audio/ActivityGate.h
        Platform/Linux/Audio/BlockClock.h
        Platform/Linux/Audio/CaptureGraph.h
        Platform/Linux/Audio/ControlLoop.h
        Platform/Linux/Audio/DeviceServer.h
        Platform/Linux/Audio/LinuxAudioDevices.h
        Platform/Linux/Audio/LinuxAudioOutput.h
        Platform/Linux/Audio/OutputMeter.h
        Platform/Linux/Audio/PipeWireConnection.h
        Platform/Linux/Audio/PipeWireDevices.h
        Platform/Linux/Audio/PipeWireOutput.h
        Platform/Linux/Audio/PipeWireStream.h
        Platform/Linux/Audio/ProgressWatch.h
        Platform/Linux/Audio/PulseDevices.h
        Platform/Linux/Audio/PulseLoop.h
        Platform/Linux/Audio/PulseOutput.h
        Platform/Linux/Audio/QuantumGovernor.h
        Platform/Linux/Audio/ServerOutput.h
        Platform/Linux/Audio/SocketWatch.h
    DEPENDS tocca_platform tocca_linux_system
    PRIVATE_DEPENDS PkgConfig::PIPEWIRE PkgConfig::PULSE)

# PipeWire's method calls are macros with casts of C.
set_source_files_properties(Platform/Linux/Audio/PipeWireConnection.cpp Platform/Linux/Audio/PipeWireDevices.cpp
    PROPERTIES COMPILE_OPTIONS -Wno-old-style-cast)

# What the kernel and the C library alone provide; builds without any desktop library.
pkg_check_modules(libarchive REQUIRED IMPORTED_TARGET libarchive)

app_module(tocca_linux_system
    UNITS
        Platform/Linux/Freedesktop/Applications/DesktopEntries
        Platform/Linux/Freedesktop/Applications/DesktopEntry
        Platform/Linux/Freedesktop/Applications/KnownApplications
        Platform/Linux/Freedesktop/Applications/LinuxLoginItem
        Platform/Linux/Freedesktop/Applications/WindowOwner
        Platform/Linux/System/LinuxRandom
        Platform/Linux/System/LinuxStandardOutput
        Platform/Linux/System/ProcessNames
        Platform/Linux/System/WaylandSession
        Platform/Linux/System/Files/FileCopy
        Platform/Linux/System/Files/FileError
        Platform/Linux/System/Files/FileReplacement
        Platform/Linux/System/Files/HomeTrash
        Platform/Linux/System/Files/LinuxDirectories
        Platform/Linux/System/Files/LinuxFileStore
        Platform/Linux/System/Files/LinuxFiles
        Platform/Linux/System/Files/LinuxUserDefaults
        Platform/Linux/System/Files/ZipArchives
        Platform/Linux/System/Threads/Doorbell
        Platform/Linux/System/Threads/LinuxMainQueue
        Platform/Linux/System/Threads/LinuxSerialQueues
        Platform/Linux/System/Threads/LinuxThreads
        Platform/Linux/System/Threads/LinuxTimers
        Platform/Linux/System/Threads/RunLoop
        Platform/Linux/System/Threads/Scheduling
        Platform/Linux/System/Threads/WakeDescriptor
    HEADERS
        Platform/Linux/System/ApplicationId.h
        Platform/Linux/System/CoreFiles.h
        Platform/Linux/System/FileDescriptor.h
        Platform/Linux/System/Files/SystemCalls.h
        Platform/Linux/System/LinuxClock.h
        Platform/Linux/System/LinuxHaptics.h
        Platform/Linux/System/SecureInput.h
    DEPENDS tocca_platform
    PRIVATE_DEPENDS PkgConfig::libarchive)

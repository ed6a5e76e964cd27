app_module(tocca_memory
    UNITS
        Platform/Memory/MemoryArchives
        Platform/Memory/MemoryAudioPlayers
        Platform/Memory/MemoryDesktop
        Platform/Memory/MemoryEventTaps
        Platform/Memory/MemoryDisk
        Platform/Memory/MemoryFileStore
        Platform/Memory/MemoryFiles
        Platform/Memory/MemoryHost
        Platform/Memory/MemoryQueues
        Platform/Memory/MemoryServices
        Platform/Memory/MemoryThreads
        Platform/Memory/MemoryTimers
        Platform/Memory/VirtualTime
    DEPENDS tocca_platform)

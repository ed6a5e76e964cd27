#pragma once

#include "Audio/PackFolder.h"
#include "Audio/Packs/PackLibrary.h"
#include "Platform/Memory/MemoryHost.h"

#include <string>
#include <vector>

namespace tocca::audio {

inline const std::filesystem::path kPacks = "/home/user/.local/share/Tocca/CustomSoundPacks";

inline const FolderContents kOldPack{{"old.wav", "old"}, {"sub", "(folder)"}, {"sub/deep.wav", "old deep"}};
inline const FolderContents kNewPack{{"link", "(link)"},
                                     {"new.wav", "new"},
                                     {"sub", "(folder)"},
                                     {"sub/deep.wav", "new deep"},
                                     {"sub/empty", "(folder)"}};

/// A machine with the pack "Alps", and another one of that name to be imported from /downloads/Alps.
struct ImportMachine {
    ImportMachine()
    {
        auto& files = host.files();
        files.write(kPacks / "Alps/old.wav", "old");
        files.write(kPacks / "Alps/sub/deep.wav", "old deep");
        files.write("/downloads/Alps/new.wav", "new");
        files.write("/downloads/Alps/sub/deep.wav", "new deep");
        files.makeDirectory("/downloads/Alps/sub/empty");
        files.makeLink("/downloads/Alps/link", "new.wav");
        files.makeSpecial("/downloads/Alps/fifo");
    }

    FolderContents contents(const std::filesystem::path& folder)
    {
        return contentsOf(host.files(), host.fileStore(), folder);
    }

    std::vector<std::string> listedIds()
    {
        return idsOf(PackLibrary(host.files(), host.fileStore()).packs(kPacks));
    }

    platform::memory::MemoryHost host;
};

} // namespace tocca::audio

#pragma once

#include <filesystem>
#include <string>

namespace tocca::audio {

/// A sound pack that the user imported.
struct SoundPackInfo {
    std::string id;          ///< "custom_" and the folder's name
    std::string name;        ///< for display
    std::string description; ///< one line for display
    bool isCustom = true;
    std::filesystem::path folderURL;

    bool operator==(const SoundPackInfo&) const = default;
};

} // namespace tocca::audio

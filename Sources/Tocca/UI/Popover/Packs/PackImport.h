#pragma once

#include "Support/Lifetime.h"
#include "Support/Published.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tocca::audio {
class SoundPackLoader;
}

namespace tocca::platform {
struct Host;
}

namespace tocca::ui {

/// Brings sound packs in, by the open panel or by a drop, and tells how it went.
/// Threads: main.
class PackImport {
public:
    PackImport(platform::Host& host, audio::SoundPackLoader& loader);
    PackImport(const PackImport&) = delete;
    PackImport& operator=(const PackImport&) = delete;

    /// How the last import went, in one line; it stays until the next.
    Published<std::optional<std::string>> importMessage{std::nullopt};

    /// Asks for a folder and imports it.
    void openSoundPackImporter();

    /// Takes the folders that were dropped: the first is imported a moment later, the others are left. Returns whether there is one.
    bool handleDrop(const std::vector<std::filesystem::path>& folders);

private:
    void importFrom(const std::filesystem::path& folder, std::string_view failure);

    platform::Host& host_;
    audio::SoundPackLoader& loader_;
    Lifetime lifetime_;
};

} // namespace tocca::ui

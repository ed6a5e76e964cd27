#pragma once

#include "Support/Lifetime.h"
#include "Support/Published.h"
#include "Support/Result.h"

#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tocca::audio {
class SoundPackLoader;
struct PreparedPack;
} // namespace tocca::audio

namespace tocca::platform {
class SerialQueue;
struct Host;
} // namespace tocca::platform

namespace tocca::ui {

/// Brings sound packs in, by the open panel or by a drop, and tells how it goes and how it went.
///
/// Reading, converting and copying happen on a thread of its own, one pack after the other; the main thread only moves the result to
/// its place.
/// Threads: main.
class PackImport {
public:
    PackImport(platform::Host& host, audio::SoundPackLoader& loader);
    ~PackImport();
    PackImport(const PackImport&) = delete;
    PackImport& operator=(const PackImport&) = delete;

    /// How the last import went, in one line; it stays until the next.
    Published<std::optional<std::string>> importMessage{std::nullopt};

    /// What is being imported, in one line; nothing while nothing is.
    Published<std::optional<std::string>> importActivity{std::nullopt};

    /// How much of it is done. Units: percent.
    Published<int> importPercent{0};

    /// Asks for a folder and imports it.
    void openSoundPackImporter();

    /// Takes the folders and archives that were dropped: the first is imported a moment later, the others are left. Returns whether there
    /// is one.
    bool handleDrop(const std::vector<std::filesystem::path>& folders);

    /// Gives up what is being imported, and what waits for it.
    void cancel();

private:
    struct Job;

    void importFrom(const std::filesystem::path& source, std::string_view failure);
    void begin();
    void prepare(const std::shared_ptr<Job>& job);
    void finish(const Job& job, std::unique_ptr<Result<audio::PreparedPack>> prepared);

    platform::Host& host_;
    audio::SoundPackLoader& loader_;
    std::deque<std::shared_ptr<Job>> jobs_; // the first is under way
    Lifetime lifetime_;
    std::unique_ptr<platform::SerialQueue> queue_; // last: its tasks use the members above
};

} // namespace tocca::ui

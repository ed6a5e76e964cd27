#include "Audio/Packs/PackImporter.h"
#include "Audio/Packs/PackLibrary.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "Instruments/TemporaryDirectory.h"
#include "Platform/Linux/System/Files/LinuxFileStore.h"
#include "Platform/Linux/System/Files/LinuxFiles.h"
#include "Platform/Memory/MemoryHost.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>

// What the main thread pays for listing and importing packs.
namespace tocca::audio {
namespace {

constexpr int kPacks = 1000;

/// Names whose order is not that of the folders.
std::string manifestOf(int pack)
{
    constexpr int kStride = 7919;
    return R"({"name":"Pack )" + std::to_string(pack * kStride % kPacks) +
           R"(","description":"A switch that somebody recorded at home","author":{"tags":["linear","loud"]}})";
}

/// Reading every pack's manifest from the disk.
void scan1000PacksOnDisk(benchmark::State& state)
{
    const instruments::TemporaryDirectory directory;
    for (int i = 0; i < kPacks; ++i) {
        const auto folder = directory.path() / ("folder " + std::to_string(i));
        std::filesystem::create_directory(folder);
        instruments::TemporaryDirectory::write(folder / "tocca_meta.json", manifestOf(i));
        instruments::TemporaryDirectory::write(folder / "press.wav", "");
    }
    const platform::linux::LinuxFiles files;
    platform::linux::LinuxFileStore store;
    const PackLibrary library(files, store);
    for (auto _ : state) {
        const auto packs = library.packs(directory.path());
        if (!packs || packs.value().size() != kPacks) {
            state.SkipWithError("not all packs were listed");
            break;
        }
    }
}

BENCHMARK(scan1000PacksOnDisk)->Unit(benchmark::kMillisecond);

/// The whole of a refresh with sorting and publication, without the disk.
void refresh1000PacksInMemory(benchmark::State& state)
{
    platform::memory::MemoryHost host;
    SoundPackLoader loader(host);
    for (int i = 0; i < kPacks; ++i) {
        host.files().write(loader.customPacksDirectory() / std::to_string(i) / "tocca_meta.json",
                           manifestOf(i));
    }
    for (auto _ : state) {
        loader.refreshCustomPacks();
        host.settle();
    }
    const auto& packs = loader.availableCustomPacks.get();
    const auto byName = [](const auto& a, const auto& b) { return a.name < b.name; };
    if (packs.size() != kPacks || !std::is_sorted(packs.begin(), packs.end(), byName)) {
        state.SkipWithError("the list is not complete and sorted");
    }
}

BENCHMARK(refresh1000PacksInMemory)->Unit(benchmark::kMillisecond);

/// Replacing a pack of 40 recordings of 30 kB, each of which must reach the disk.
void importPackOnDisk(benchmark::State& state)
{
    constexpr int kRecordings = 40;
    constexpr std::size_t kRecordingSize = 30'000;
    const instruments::TemporaryDirectory directory;
    const auto source = directory.path() / "Alps";
    const auto library = directory.path() / "library";
    std::filesystem::create_directory(source);
    for (int i = 0; i < kRecordings; ++i) {
        instruments::TemporaryDirectory::write(source / (std::to_string(i) + ".wav"),
                                               std::string(kRecordingSize, 'x'));
    }
    const platform::linux::LinuxFiles files;
    platform::linux::LinuxFileStore store{platform::linux::HomeTrash(directory.path() / "trash")};
    for (auto _ : state) {
        if (!PackImporter(files, store).import(source, library)) {
            state.SkipWithError("the import failed");
            break;
        }
    }
}

BENCHMARK(importPackOnDisk)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace tocca::audio

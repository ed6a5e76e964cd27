#include "Acceptance/Recording.h"
#include "Model/Packs.h"
#include "Output/FileError.h"
#include "Output/PackWriter.h"
#include "Output/Parallel.h"

#include <algorithm>
#include <optional>
#include <system_error>

namespace tocca::soundpack {

namespace {

std::size_t countWavFiles(const std::filesystem::path& folder)
{
    std::error_code error;
    const std::filesystem::directory_iterator entries(folder, error);
    return static_cast<std::size_t>(std::count_if(
        begin(entries), end(entries), [](const auto& entry) { return entry.path().extension() == ".wav"; }));
}

} // namespace

Result<std::vector<PackRecordings>> readPacks(const std::filesystem::path& directory)
{
    const std::vector<PackFile> files = filesOf(packs());
    std::vector<std::optional<Recording>> recordings(files.size());
    std::vector<Outcome> outcomes(files.size(), std::monostate{});
    inParallel(files.size(), [&](std::size_t i) {
        Result<WavFile> wav = readWav(directory / files[i].path());
        if (!wav) {
            outcomes[i] = wav.error();
        } else if (wav.value().samples.empty()) {
            outcomes[i] = fileError("find samples in", directory / files[i].path(), 0);
        } else {
            recordings[i] = measure(files[i].path().string(), std::move(wav.value()));
        }
    });
    if (const auto failed = std::ranges::find_if_not(outcomes, &Outcome::hasValue);
        failed != outcomes.end()) {
        return failed->error();
    }

    std::vector<PackRecordings> all;
    std::size_t next = 0;
    for (const Pack& pack : packs()) {
        PackRecordings read{.folder = pack.folder,
                            .isSwitch = !pack.bigKeys.empty(),
                            .fileCount = countWavFiles(directory / pack.folder),
                            .slots = {}};
        for (const Slot& slot : kSlots) {
            SlotRecordings& variants = read.slots.emplace_back(SlotRecordings{slot, {}});
            for (std::size_t variant = 0; variant < variantCount(slot); ++variant) {
                variants.variants.push_back(*std::move(recordings[next++]));
            }
        }
        all.push_back(std::move(read));
    }
    return all;
}

} // namespace tocca::soundpack

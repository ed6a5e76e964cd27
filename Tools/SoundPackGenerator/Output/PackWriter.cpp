#include "Output/PackWriter.h"

#include "Model/Selection.h"
#include "Output/FileError.h"
#include "Output/Parallel.h"
#include "Output/WavFile.h"
#include "Synthesis/Finish.h"
#include "Synthesis/Render.h"

#include <algorithm>
#include <atomic>
#include <system_error>

namespace tocca::soundpack {

std::filesystem::path PackFile::path() const
{
    return std::filesystem::path(pack->folder) / fileName(slot, variant);
}

std::vector<PackFile> filesOf(const std::vector<Pack>& all)
{
    std::vector<PackFile> files;
    for (const Pack& pack : all) {
        for (const Slot& slot : kSlots) {
            for (std::size_t variant = 0; variant < variantCount(slot); ++variant) {
                files.push_back({&pack, slot, variant});
            }
        }
    }
    return files;
}

std::vector<std::int16_t> samplesOf(const PackFile& file)
{
    const Selection& selection = selectionOf(file.pack->folder, file.slot);
    const std::vector<double> rendered = render(*file.pack, file.slot, selection.indices.at(file.variant));
    return finish(rendered, selection.gainDb, strokeOf(*file.pack, file.slot).stroke);
}

Outcome writePacks(const std::vector<Pack>& all, const std::filesystem::path& directory)
{
    for (const Pack& pack : all) {
        std::error_code error;
        std::filesystem::create_directories(directory / pack.folder, error);
        if (error) {
            return fileError("create the directory", directory / pack.folder, error.value());
        }
    }
    const std::vector<PackFile> files = filesOf(all);
    std::vector<Outcome> outcomes(files.size(), std::monostate{});
    std::atomic<bool> failed{false};
    inParallel(files.size(), [&](std::size_t i) {
        if (failed) {
            return;
        }
        outcomes[i] = writeFile(directory / files[i].path(), wavBytes(samplesOf(files[i])));
        if (!outcomes[i]) {
            failed = true;
        }
    });
    const auto first = std::ranges::find_if_not(outcomes, &Outcome::hasValue);
    return first == outcomes.end() ? Outcome(std::monostate{}) : *first;
}

} // namespace tocca::soundpack

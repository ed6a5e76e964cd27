#include "UI/Popover/Packs/PackImport.h"

#include "Audio/Conversion/PackIntake.h"
#include "Audio/Packs/PackImportError.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "Platform/Desktop/OpenPanels.h"
#include "Platform/Host.h"
#include "Platform/MainQueue.h"
#include "Platform/SerialQueue.h"
#include "Support/DisplayText.h"

#include <atomic>
#include <utility>

namespace tocca::ui {

struct PackImport::Job {
    std::filesystem::path source;
    std::filesystem::path packs;
    std::string_view failure;
    std::atomic<bool> isCancelled{false}; // main -> the import's thread
    int shownPercent = 0;                 // the import's thread
};

PackImport::PackImport(platform::Host& host, audio::SoundPackLoader& loader)
    : host_(host)
    , loader_(loader)
{}

PackImport::~PackImport()
{
    cancel();
}

void PackImport::openSoundPackImporter()
{
    host_.openPanels.chooseDirectory(
        "Import Soundpack", lifetime_.guard([this](const std::optional<std::filesystem::path>& folder) {
            if (folder) {
                importFrom(*folder, "Failed to import: ");
            }
        }));
}

bool PackImport::handleDrop(const std::vector<std::filesystem::path>& folders)
{
    if (folders.empty()) {
        return false;
    }
    host_.mainQueue.post(
        lifetime_.guard([this, folder = folders.front()] { importFrom(folder, "Import failed: "); }));
    return true;
}

void PackImport::cancel()
{
    for (const auto& job : jobs_) {
        job->isCancelled = true;
    }
}

void PackImport::importFrom(const std::filesystem::path& source, std::string_view failure)
{
    auto job = std::make_shared<Job>();
    job->source = source;
    job->packs = loader_.customPacksDirectory();
    job->failure = failure;
    jobs_.push_back(std::move(job));
    if (jobs_.size() == 1) {
        begin();
    }
}

void PackImport::begin()
{
    if (!queue_) {
        queue_ = host_.serialQueues.make({.label = "com.tocca.packimport"});
    }
    const auto job = jobs_.front();
    const auto name =
        job->source.has_filename() ? job->source.filename() : job->source.parent_path().filename();
    importPercent.set(0);
    importActivity.set("Importing “" + displayText(name.string()) + "”…");
    queue_->post([this, job] { prepare(job); });
}

void PackImport::prepare(const std::shared_ptr<Job>& job)
{
    const audio::ImportWatch watch{
        .isCancelled = [&] { return job->isCancelled.load(); },
        .progress =
            [&](double share) {
                constexpr double kWhole = 100.0;
                const int percent = static_cast<int>(share * kWhole);
                if (std::exchange(job->shownPercent, percent) != percent) {
                    host_.mainQueue.post(lifetime_.guard([this, percent] { importPercent.set(percent); }));
                }
            }};
    auto prepared = job->packs.empty()
                        ? Result<audio::PreparedPack>(Error{"the system names no folder for the user's data"})
                        : audio::PackIntake(host_).prepare(job->source, job->packs, watch);
    host_.mainQueue.post(lifetime_.guard(
        [this, job, kept = std::make_unique<Result<audio::PreparedPack>>(std::move(prepared))]() mutable {
            finish(*job, std::move(kept));
        }));
}

void PackImport::finish(const Job& job, std::unique_ptr<Result<audio::PreparedPack>> preparation)
{
    const Result<audio::PreparedPack>& prepared = *preparation;
    const auto fail = [&](const std::string& reason) {
        importMessage.set(std::string(job.failure) + reason);
    };
    if (!prepared) {
        fail(displayText(prepared.error().describe()));
    } else if (job.isCancelled) {
        fail("cancelled");
    } else {
        try {
            const std::string name = loader_.importCustomPack(prepared.value().path);
            importMessage.set("Imported '" + displayText(name) + "'!");
        } catch (const audio::PackImportError& error) {
            fail(error.what());
        }
    }
    importActivity.set(std::nullopt);
    // What is left may be thousands of files.
    queue_->post([kept = std::move(preparation)] {});
    jobs_.pop_front();
    if (!jobs_.empty()) {
        begin();
    }
}

} // namespace tocca::ui

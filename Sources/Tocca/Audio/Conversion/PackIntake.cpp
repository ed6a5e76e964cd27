#include "Audio/Conversion/PackIntake.h"

#include "Audio/Conversion/ArchiveUnpacking.h"
#include "Audio/Conversion/Formats/Formats.h"
#include "Audio/Conversion/PackConverter.h"
#include "Audio/Conversion/Refusal.h"
#include "Audio/Packs/PackImporter.h"
#include "Platform/Archives.h"
#include "Platform/FileStore.h"
#include "Platform/Files.h"
#include "Platform/Host.h"
#include "Platform/SoundDecoder.h"
#include "Support/LowerCase.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tocca::audio {

namespace fs = std::filesystem;
using platform::FileKind;

namespace {

constexpr const char* kOriginal = "original"; // the folder of what came, in a converted pack

bool endsWithAny(const fs::path& path, std::initializer_list<std::string_view> endings)
{
    const std::string name = lowerCased(path.filename().string());
    return std::any_of(endings.begin(), endings.end(), [&](auto ending) { return name.ends_with(ending); });
}

bool holdsSounds(const SourceTree& tree)
{
    const auto files = tree.files();
    return std::any_of(files.begin(), files.end(), formats::isSoundFile);
}

/// The archive in a folder that holds no sounds, when there is one.
std::optional<std::string> onlyArchive(const SourceTree& tree)
{
    std::optional<std::string> found;
    for (const std::string& file : tree.files()) {
        if (endsWithAny(file, {".zip"})) {
            if (found) {
                return std::nullopt;
            }
            found = file;
        }
    }
    return found;
}

} // namespace

PackIntake::PackIntake(platform::Host& host)
    : PackIntake(host.files, host.fileStore, host.archives, host.soundDecoder)
{}

Result<PreparedPack> PackIntake::prepare(const fs::path& source, const fs::path& packs,
                                         const ImportWatch& watch)
{
    const auto checked = PackImporter(files_, store_).check(source, packs);
    if (!checked) {
        return checked.error();
    }
    const PackSource& found = checked.value();
    PreparedPack prepared{.staging = std::make_unique<PackStaging>(files_, store_, packs, found.fileName),
                          .path = {}};
    PackStaging& staging = *prepared.staging;
    if (const auto opened = staging.open(); !opened) {
        return opened.error();
    }
    const auto made = found.status.kind == FileKind::File
                          ? prepareFile(found.path, staging, watch)
                          : prepareFolder(found.path, found.fileName, staging, watch);
    if (!made) {
        return made.error();
    }
    if (watch.isCancelled()) {
        return Error{"cancelled"};
    }
    prepared.path = staging.newPack();
    return prepared;
} // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the folder's owner was moved out

Outcome PackIntake::prepareFile(const fs::path& source, PackStaging& staging, const ImportWatch& watch)
{
    if (endsWithAny(source, {".rar", ".7z", ".tar", ".gz", ".tgz", ".bz2", ".xz", ".zst"})) {
        return refusalOf(source, "is an archive of a kind that is not read; unpack it and import the folder");
    }
    if (!isArchive(source)) {
        const auto status = store_.status(source);
        if (!status) {
            return status.error();
        }
        return status.value().byteCount > SourceTree::kMostBytes
                   ? Outcome(refusalOf(source, "is larger than 512 MB"))
                   : store_.copyEntry(source, staging.newPack());
    }
    const fs::path folder = staging.workFolder();
    if (auto unpacked = unpackTo(source, folder, watch); !unpacked) {
        return unpacked;
    }
    const auto tree = SourceTree::read(files_, store_, folder, watch.isCancelled);
    if (!tree) {
        return tree.error();
    }
    const std::string name = source.filename().string();
    if (!holdsSounds(tree.value())) {
        return refusalOf(source, "holds no sounds");
    }
    const auto choice = choosePack(tree.value(), name);
    if (!choice) {
        return choice.error();
    }
    if (choice.value().plan) {
        return convert(choice.value(), tree.value(), name, staging, true, watch);
    }
    if (!choice.value().isKnown) {
        return refusalOf(source, "is no sound pack of a kind that is known");
    }
    return store_.move(choice.value().tree.root(), staging.newPack());
}

Outcome PackIntake::prepareFolder(const fs::path& source, const std::string& name, PackStaging& staging,
                                  const ImportWatch& watch)
{
    const auto tree = SourceTree::read(files_, store_, source, watch.isCancelled);
    if (!tree) {
        return tree.error();
    }
    const auto choice = choosePack(tree.value(), name);
    if (!choice) {
        return choice.error();
    }
    if (!choice.value().isKnown) {
        if (const auto archive = onlyArchive(tree.value()); archive && !holdsSounds(tree.value())) {
            return prepareFile(source / *archive, staging, watch);
        }
    }
    return choice.value().plan ? convert(choice.value(), tree.value(), name, staging, false, watch)
                               : copy(choice.value().tree, staging.newPack(), watch);
}

bool PackIntake::isArchive(const fs::path& file) const
{
    return endsWithAny(file, {".zip"});
}

Outcome PackIntake::unpackTo(const fs::path& archive, const fs::path& folder, const ImportWatch& watch)
{
    constexpr std::size_t kLargestArchive =
        ArchiveLimits::kMostBytes * 2; // what does not shrink, and its lists
    const auto bytes = files_.read(archive, kLargestArchive);
    if (!bytes) {
        return bytes.error();
    }
    auto opened = archives_.open(bytes.value());
    if (!opened) {
        return refusalOf(archive, "cannot be read: " + opened.error().describe());
    }
    if (auto made = store_.makeDirectories(folder); !made) {
        return made;
    }
    return unpack(*opened.value(), store_, folder, watch);
}

Outcome PackIntake::convert(const PackChoice& choice, const SourceTree& all, const std::string& name,
                            PackStaging& staging, bool isUnpacked, const ImportWatch& watch)
{
    constexpr double kShareOfConversion = 0.7;
    const PackConverter converter(decoder_, store_);
    const std::string baseName = fs::path(name).stem().string();
    const ImportWatch conversionWatch{.isCancelled = watch.isCancelled, .progress = [&](double share) {
                                          watch.progress(share * kShareOfConversion);
                                      }};
    const auto conversion = converter.choose(*choice.plan, choice.tree, baseName, conversionWatch);
    if (!conversion) {
        return conversion.error();
    }
    const fs::path folder = staging.newPack();
    if (auto made = store_.makeDirectories(folder); !made) {
        return made;
    }
    if (auto written = converter.write(conversion.value(), choice.tree, folder, conversionWatch); !written) {
        return written;
    }
    const ImportWatch copyWatch{.isCancelled = watch.isCancelled, .progress = [&](double share) {
                                    watch.progress(kShareOfConversion + share * (1.0 - kShareOfConversion));
                                }};
    if (auto kept = isUnpacked ? store_.move(all.root(), folder / kOriginal)
                               : copy(all, folder / kOriginal, copyWatch);
        !kept) {
        return kept;
    }
    return store_.syncDirectory(folder);
}

Outcome PackIntake::copy(const SourceTree& tree, const fs::path& to, const ImportWatch& watch)
{
    if (auto made = store_.copyEntry(tree.root(), to); !made) {
        return made;
    }
    std::vector<fs::path> folders{to};
    std::size_t done = 0;
    for (const SourceTree::Entry& entry : tree.entries()) {
        if (watch.isCancelled()) {
            return Error{"cancelled"};
        }
        const fs::path place = to / entry.path;
        if (auto copied = store_.copyEntry(tree.root() / entry.path, place); !copied) {
            return copied;
        }
        if (entry.kind == FileKind::Directory) {
            folders.push_back(place);
        }
        ++done;
        watch.progress(static_cast<double>(done) / static_cast<double>(tree.entries().size()));
    }
    for (const fs::path& folder : folders) {
        if (auto synced = store_.syncDirectory(folder); !synced) {
            return synced;
        }
    }
    return std::monostate{};
}

} // namespace tocca::audio

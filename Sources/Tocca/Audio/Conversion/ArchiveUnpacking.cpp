#include "Audio/Conversion/ArchiveUnpacking.h"

#include "Audio/Conversion/SourceTree.h"
#include "Platform/Archives.h"
#include "Platform/FileStore.h"

#include <algorithm>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace tocca::audio {

namespace {

namespace fs = std::filesystem;
using platform::ArchiveEntry;

Error entryRefusal(const ArchiveEntry& entry, const std::string& reason)
{
    return {"“" + entry.path + "” in the archive " + reason};
}

/// Where an entry belongs below the folder; empty when nobody wants it.
Result<fs::path> placeOf(const ArchiveEntry& entry)
{
    std::string path = entry.path;
    std::replace(path.begin(), path.end(), '\\', '/');
    const bool hasDrive = path.size() >= 2 && path[1] == ':';
    if (path.starts_with('/') || hasDrive) {
        return entryRefusal(entry, "has an absolute path");
    }
    fs::path place;
    int depth = 0;
    for (const fs::path& part : fs::path(path)) {
        if (part == "..") {
            return entryRefusal(entry, "leads out of it");
        }
        if (SourceTree::isDebris(part.native())) {
            return fs::path();
        }
        if (!part.empty() && part != ".") {
            place /= part;
            ++depth;
        }
    }
    if (depth > SourceTree::kDeepestFolder) {
        return entryRefusal(entry, "is too deep in its folder");
    }
    return place;
}

Result<std::vector<std::byte>> contents(platform::Archive& archive, const ArchiveEntry& entry,
                                        std::size_t bytesLeft, const ImportWatch& watch)
{
    constexpr std::size_t kChunk = std::size_t{64} << 10U;
    std::vector<std::byte> bytes;
    for (;;) {
        if (watch.isCancelled()) {
            return Error{"cancelled"};
        }
        const std::size_t before = bytes.size();
        bytes.resize(before + kChunk);
        const auto count = archive.read(std::span(bytes).subspan(before));
        if (!count) {
            return entryRefusal(entry, "cannot be read: " + count.error().describe());
        }
        bytes.resize(before + count.value());
        if (bytes.size() > ArchiveLimits::kLargestFile) {
            return entryRefusal(entry, "is larger than 32 MB");
        }
        if (bytes.size() > bytesLeft) {
            return Error{"the archive holds more than 64 MB"};
        }
        if (count.value() == 0) {
            return bytes;
        }
    }
}

} // namespace

Outcome unpack(platform::Archive& archive, platform::FileStore& store, const fs::path& folder,
               const ImportWatch& watch)
{
    std::size_t bytesLeft = ArchiveLimits::kMostBytes;
    std::size_t count = 0;
    for (;;) {
        const auto next = archive.next();
        if (!next) {
            return next.error();
        }
        if (!next.value()) {
            return std::monostate{};
        }
        const ArchiveEntry& entry = *next.value();
        if (++count > ArchiveLimits::kMostEntries) {
            return Error{"the archive holds more than 2,000 files"};
        }
        const auto place = placeOf(entry);
        if (!place) {
            return place.error();
        }
        if (place.value().empty()) {
            continue;
        }
        if (entry.isEncrypted) {
            return Error{"the archive is encrypted"};
        }
        if (entry.kind == ArchiveEntry::Kind::Link || entry.kind == ArchiveEntry::Kind::Special) {
            return entryRefusal(entry, "is neither a file nor a folder");
        }
        const fs::path path = folder / place.value();
        const bool isFile = entry.kind == ArchiveEntry::Kind::File;
        if (auto made = store.makeDirectories(isFile ? path.parent_path() : path); !made) {
            return made;
        }
        if (!isFile) {
            continue;
        }
        const auto bytes = contents(archive, entry, bytesLeft, watch);
        if (!bytes) {
            return bytes.error();
        }
        bytesLeft -= bytes.value().size();
        if (auto written = store.writeFile(path, bytes.value()); !written) {
            return written;
        }
    }
}

} // namespace tocca::audio

#include "Audio/Packs/PackImporter.h"

#include "Audio/Packs/PackStaging.h"
#include "Platform/FileStore.h"
#include "Platform/Files.h"

#include <variant>

namespace tocca::audio {

namespace fs = std::filesystem;
using platform::FileKind;
using platform::FileStatus;

namespace {

constexpr int kDeepestFolder =
    64; // only the topmost is ever read; no pack needs more, and endless ones exist

/// The last component of `path` as the user sees it; that of the folder it leads to when it ends in "." or "..".
std::string lastComponent(const fs::path& path, const fs::path& resolved)
{
    const fs::path name = path.has_filename() ? path.filename() : path.parent_path().filename();
    const bool isName = !name.empty() && name != "." && name != "..";
    return (isName ? name : resolved.filename()).string();
}

Error refusal(const std::string& name, const std::string& reason)
{
    return {"“" + name + "” " + reason};
}

} // namespace

Result<std::string> PackImporter::import(const fs::path& source, const fs::path& packs)
{
    const auto checked = check(source, packs);
    if (!checked) {
        return checked.error();
    }
    const PackSource& pack = checked.value();
    PackStaging staging(files_, store_, packs, pack.packName);
    if (const auto opened = staging.open(); !opened) {
        return opened.error();
    }
    if (const auto brought = bring(pack, packs, staging.newPack()); !brought) {
        return brought.error();
    }
    if (const auto committed = staging.commit(); !committed) {
        return committed.error();
    }
    return pack.packName;
}

Result<PackSource> PackImporter::check(const fs::path& source, const fs::path& packs) const
{
    auto examined = examine(source);
    if (!examined) {
        return examined;
    }
    if (const auto made = store_.makeDirectories(packs); !made) {
        return made.error();
    }
    if (const auto allowed = refuseOverlap(examined.value(), packs); !allowed) {
        return allowed.error();
    }
    return examined;
}

Outcome PackImporter::bring(const PackSource& source, const fs::path& packs, const fs::path& to)
{
    const auto library = store_.resolve(packs);
    return library && PackStaging::isStaged(source.path, library.value()) ? store_.move(source.path, to)
                                                                          : copyTree(source.path, to, 0);
}

Result<PackSource> PackImporter::examine(const fs::path& path) const
{
    const auto resolved = store_.resolve(path);
    if (!resolved) {
        return resolved.error();
    }
    const auto status = store_.status(resolved.value());
    if (!status) {
        return status.error();
    }
    const std::string name = lastComponent(path, resolved.value());
    if (status.value().kind != FileKind::Directory && status.value().kind != FileKind::File) {
        return refusal(name, "is neither a folder nor a file");
    }
    const std::string packName = fs::path(name).stem().string();
    if (packName.empty() || packName == "." || packName == ".." || PackStaging::isReserved(packName)) {
        return refusal(name, "cannot be the name of a sound pack");
    }
    return PackSource{
        .path = resolved.value(), .status = status.value(), .fileName = name, .packName = packName};
}

Outcome PackImporter::refuseOverlap(const PackSource& source, const fs::path& packs) const
{
    const auto library = store_.resolve(packs);
    if (!library) {
        return library.error();
    }
    const auto holdsLibrary = leadsThrough(library.value(), source.status);
    if (!holdsLibrary) {
        return holdsLibrary.error();
    }
    if (holdsLibrary.value()) {
        return refusal(source.packName, "contains the imported sound packs themselves");
    }
    const auto place = store_.status(packs / source.packName);
    if (!place) {
        return place.error();
    }
    if (place.value().kind == FileKind::Missing) {
        return std::monostate{};
    }
    const auto isInPlace = leadsThrough(source.path, place.value());
    if (!isInPlace) {
        return isInPlace.error();
    }
    if (isInPlace.value()) {
        return refusal(source.packName, "is in the imported sound pack that it would replace");
    }
    return std::monostate{};
}

Result<bool> PackImporter::leadsThrough(const fs::path& path, const FileStatus& directory) const
{
    for (fs::path at = path;; at = at.parent_path()) {
        const auto status = store_.status(at);
        if (!status) {
            return status.error();
        }
        if (status.value().identity == directory.identity) {
            return true;
        }
        if (at == at.parent_path()) {
            return false;
        }
    }
}

Outcome PackImporter::copyTree(const fs::path& from, const fs::path& to, int depth)
{
    const auto status = store_.status(from);
    if (!status) {
        return status.error();
    }
    if (status.value().kind == FileKind::Special) {
        return std::monostate{};
    }
    if (depth > kDeepestFolder) {
        return refusal(from.filename().string(), "is too deep in its folder");
    }
    // A file that has gone since it was listed is reported by this.
    auto copied = store_.copyEntry(from, to);
    if (!copied || status.value().kind != FileKind::Directory) {
        return copied;
    }
    const auto names = files_.list(from);
    if (!names) {
        return names.error();
    }
    for (const std::string& name : names.value()) {
        if (auto entry = copyTree(from / name, to / name, depth + 1); !entry) {
            return entry;
        }
    }
    return store_.syncDirectory(to);
}

} // namespace tocca::audio

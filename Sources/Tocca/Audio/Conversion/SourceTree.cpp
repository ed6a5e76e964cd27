#include "Audio/Conversion/SourceTree.h"

#include "Audio/Conversion/Refusal.h"
#include "Platform/Files.h"
#include "Support/LowerCase.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace tocca::audio {

namespace fs = std::filesystem;
using platform::FileKind;

namespace {

struct Reading {
    const platform::Files& files;
    const platform::FileStore& store;
    const std::function<bool()>& isCancelled;
    const fs::path& root;
    std::vector<SourceTree::Entry>& entries;
    std::uint64_t bytes = 0;

    Outcome add(const std::string& path, int depth)
    {
        const auto status = store.status(root / path);
        if (!status) {
            return status.error();
        }
        if (status.value().kind == FileKind::Special || status.value().kind == FileKind::Missing) {
            return std::monostate{};
        }
        bytes += status.value().byteCount;
        if (bytes > SourceTree::kMostBytes) {
            return refusalOf(root, "is larger than 512 MB");
        }
        if (entries.size() == SourceTree::kMostEntries) {
            return refusalOf(root, "holds more than 20,000 files");
        }
        entries.push_back({.path = path, .kind = status.value().kind});
        return status.value().kind == FileKind::Directory ? addContents(path, depth + 1)
                                                          : Outcome(std::monostate{});
    }

    Outcome addContents(const std::string& folder, int depth)
    {
        if (isCancelled()) {
            return Error{"cancelled"};
        }
        if (depth > SourceTree::kDeepestFolder) {
            return refusalOf(folder, "is too deep in its folder");
        }
        auto names = files.list(root / folder);
        if (!names) {
            return names.error();
        }
        if (names.value().size() > SourceTree::kMostEntries) {
            return refusalOf(root, "holds more than 20,000 files");
        }
        std::sort(names.value().begin(), names.value().end());
        for (const std::string& name : names.value()) {
            if (SourceTree::isDebris(name)) {
                continue;
            }
            if (auto added = add((fs::path(folder) / name).string(), depth); !added) {
                return added;
            }
        }
        return std::monostate{};
    }
};

} // namespace

Result<SourceTree> SourceTree::read(const platform::Files& files, const platform::FileStore& store,
                                    const fs::path& root, const std::function<bool()>& isCancelled)
{
    SourceTree tree(files, root);
    Reading reading{files, store, isCancelled, root, tree.entries_};
    if (const auto all = reading.addContents("", 0); !all) {
        return all.error();
    }
    tree.index();
    return tree;
}

SourceTree SourceTree::below(const std::string& folder) const
{
    SourceTree tree(*reader_, root_ / folder);
    for (const Entry& entry : entries_) {
        if (entry.path.starts_with(folder + "/")) {
            tree.entries_.push_back({.path = entry.path.substr(folder.size() + 1), .kind = entry.kind});
        }
    }
    tree.index();
    return tree;
}

void SourceTree::index()
{
    for (const Entry& entry : entries_) {
        if (entry.kind == FileKind::File) {
            byPath_.emplace(entry.path, entry.path);
            byLowerCase_.emplace(lowerCased(entry.path), entry.path);
        }
    }
}

std::vector<std::string> SourceTree::files() const
{
    std::vector<std::string> paths;
    for (const auto& [path, same] : byPath_) {
        paths.push_back(path);
    }
    return paths;
}

std::vector<std::string> SourceTree::topFolders() const
{
    std::vector<std::string> names;
    for (const Entry& entry : entries_) {
        if (entry.kind == FileKind::Directory && entry.path.find('/') == std::string::npos) {
            names.push_back(entry.path);
        }
    }
    return names;
}

std::optional<std::string> SourceTree::find(std::string_view name) const
{
    std::string path(name);
    std::replace(path.begin(), path.end(), '\\', '/');
    while (path.starts_with("./")) {
        path.erase(0, 2);
    }
    if (const auto exact = byPath_.find(path); exact != byPath_.end()) {
        return exact->second;
    }
    const auto similar = byLowerCase_.find(lowerCased(path));
    return similar != byLowerCase_.end() ? std::optional(similar->second) : std::nullopt;
}

std::optional<std::string> SourceTree::text(const std::string& path, std::size_t limit) const
{
    const auto bytes = reader_->read(root_ / path, limit);
    if (!bytes) {
        return std::nullopt;
    }
    std::string text(bytes.value()->size(), '\0');
    std::transform(bytes.value()->begin(), bytes.value()->end(), text.begin(),
                   [](std::byte byte) { return static_cast<char>(byte); });
    return text;
}

bool SourceTree::isDebris(std::string_view name)
{
    return name == "__MACOSX" || name == ".DS_Store" || name.starts_with("._");
}

} // namespace tocca::audio

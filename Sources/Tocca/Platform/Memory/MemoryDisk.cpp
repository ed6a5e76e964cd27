#include "Platform/Memory/MemoryDisk.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace tocca::platform::memory {

namespace {

constexpr int kMostLinks = 40;

MemoryDisk::Node* entryOf(const MemoryDisk::Node& directory, const std::string& name)
{
    const auto found = std::find_if(directory.entries.begin(), directory.entries.end(),
                                    [&name](const auto& entry) { return entry->name == name; });
    return found == directory.entries.end() ? nullptr : found->get();
}

} // namespace

MemoryDisk::MemoryDisk()
    : root_(std::make_unique<Node>())
{
    root_->parent = root_.get();
    root_->number = ++lastNumber_;
}

Result<MemoryDisk::Node*, std::errc> MemoryDisk::find(const std::filesystem::path& path,
                                                      LastLink lastLink) const
{
    if (!path.is_absolute()) {
        return std::errc::no_such_file_or_directory;
    }
    std::deque<std::string> left(path.begin(), path.end());
    Node* at = root_.get();
    for (int links = 0; !left.empty();) {
        const std::string name = std::move(left.front());
        left.pop_front();
        if (name == "/") {
            at = root_.get();
            continue;
        }
        if (at->kind != FileKind::Directory) {
            return std::errc::not_a_directory;
        }
        if (name.empty() || name == ".") {
            continue;
        }
        Node* const next = name == ".." ? at->parent : entryOf(*at, name);
        if (next == nullptr) {
            return std::errc::no_such_file_or_directory;
        }
        if (next->kind == FileKind::Link && (!left.empty() || lastLink == LastLink::Follow)) {
            if (++links > kMostLinks) {
                return std::errc::too_many_symbolic_link_levels;
            }
            left.insert(left.begin(), next->target.begin(), next->target.end());
            continue;
        }
        at = next;
    }
    return at;
}

std::filesystem::path MemoryDisk::pathOf(const Node& node) const
{
    return &node == root_.get() ? "/" : pathOf(*node.parent) / node.name;
}

Result<MemoryDisk::Node*, std::errc> MemoryDisk::add(const std::filesystem::path& path, FileKind kind)
{
    auto node = std::make_unique<Node>();
    node->kind = kind;
    node->number = ++lastNumber_;
    return attach(path, node);
}

std::unique_ptr<MemoryDisk::Node> MemoryDisk::detach(Node& node)
{
    auto& siblings = node.parent->entries;
    const auto place = std::find_if(siblings.begin(), siblings.end(),
                                    [&node](const auto& entry) { return entry.get() == &node; });
    auto taken = std::move(*place);
    siblings.erase(place);
    return taken;
}

Result<MemoryDisk::Node*, std::errc> MemoryDisk::attach(const std::filesystem::path& path,
                                                        std::unique_ptr<Node>& node)
{
    const auto parent = find(path.parent_path(), LastLink::Follow);
    if (!parent) {
        return parent.error();
    }
    if (parent.value()->kind != FileKind::Directory) {
        return std::errc::not_a_directory;
    }
    const std::string name = path.filename().string();
    if (name.empty() || name == "." || name == ".." || entryOf(*parent.value(), name) != nullptr) {
        return std::errc::file_exists;
    }
    node->name = name;
    node->parent = parent.value();
    return parent.value()->entries.emplace_back(std::move(node)).get();
}

Error failure(const std::filesystem::path& path, std::errc reason)
{
    return {path.filename().string() + ": " + std::make_error_code(reason).message()};
}

} // namespace tocca::platform::memory

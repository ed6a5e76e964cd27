#include "Platform/Memory/MemoryFiles.h"

#include <algorithm>

namespace tocca::platform::memory {

SharedBytes bytesOf(std::string_view text)
{
    auto bytes = std::make_shared<std::vector<std::byte>>(text.size());
    std::transform(text.begin(), text.end(), bytes->begin(),
                   [](char c) { return static_cast<std::byte>(c); });
    return bytes;
}

std::string textOf(const std::vector<std::byte>& bytes)
{
    std::string text(bytes.size(), '\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](std::byte b) { return static_cast<char>(b); });
    return text;
}

Result<std::vector<std::string>> MemoryFiles::list(const std::filesystem::path& directory) const
{
    ++accessCount_;
    const auto found = nodes_.find(directory);
    if (found == nodes_.end()) {
        return Error{"No such file or directory"};
    }
    if (found->second.kind != Kind::Directory) {
        return Error{"Not a directory"};
    }
    if (!found->second.isReadable) {
        return Error{"Permission denied"};
    }
    return found->second.entries;
}

Result<SharedBytes> MemoryFiles::read(const std::filesystem::path& path, std::size_t limit) const
{
    ++accessCount_;
    const auto found = nodes_.find(path);
    if (found == nodes_.end()) {
        return Error{"No such file or directory"};
    }
    const Node& node = found->second;
    if (node.kind != Kind::File) {
        return Error{"Not a regular file"};
    }
    if (!node.isReadable) {
        return Error{"Permission denied"};
    }
    if (node.bytes->size() > limit) {
        return Error{"File too large"};
    }
    return node.bytes;
}

void MemoryFiles::makeDirectory(const std::filesystem::path& path)
{
    add(path, Kind::Directory);
}

void MemoryFiles::write(const std::filesystem::path& path, std::string_view text)
{
    add(path, Kind::File).bytes = bytesOf(text);
}

void MemoryFiles::makeSpecial(const std::filesystem::path& path)
{
    add(path, Kind::Special);
}

void MemoryFiles::makeUnreadable(const std::filesystem::path& path)
{
    nodes_.at(path).isReadable = false;
}

MemoryFiles::Node& MemoryFiles::add(const std::filesystem::path& path, Kind kind)
{
    const bool isNew = !nodes_.contains(path);
    if (isNew && path.has_relative_path()) {
        Node& parent = add(path.parent_path(), Kind::Directory);
        parent.entries.push_back(path.filename().string());
    }
    Node& node = nodes_[path];
    node.kind = kind;
    return node;
}

} // namespace tocca::platform::memory

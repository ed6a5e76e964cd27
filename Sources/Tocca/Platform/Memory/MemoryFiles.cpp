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

bool MemoryFiles::exists(const std::filesystem::path& path) const
{
    return disk_.find(path, MemoryDisk::LastLink::Follow).hasValue();
}

Result<std::vector<std::string>> MemoryFiles::list(const std::filesystem::path& directory) const
{
    ++accessCount_;
    const auto found = disk_.find(directory, MemoryDisk::LastLink::Follow);
    if (!found) {
        return failure(directory, found.error());
    }
    if (found.value()->kind != FileKind::Directory) {
        return failure(directory, std::errc::not_a_directory);
    }
    if (!found.value()->isReadable) {
        return failure(directory, std::errc::permission_denied);
    }
    std::vector<std::string> names;
    for (const auto& entry : found.value()->entries) {
        names.push_back(entry->name);
    }
    return names;
}

Result<SharedBytes> MemoryFiles::read(const std::filesystem::path& path, std::size_t limit) const
{
    ++accessCount_;
    const auto found = disk_.find(path, MemoryDisk::LastLink::Follow);
    if (!found) {
        return failure(path, found.error());
    }
    const MemoryDisk::Node& node = *found.value();
    if (node.kind != FileKind::File) {
        return Error{path.filename().string() + ": not a regular file"};
    }
    if (!node.isReadable) {
        return failure(path, std::errc::permission_denied);
    }
    if (node.bytes->size() > limit) {
        return failure(path, std::errc::file_too_large);
    }
    return node.bytes;
}

void MemoryFiles::makeDirectory(const std::filesystem::path& path)
{
    add(path, FileKind::Directory);
}

void MemoryFiles::write(const std::filesystem::path& path, std::string_view text)
{
    add(path, FileKind::File).bytes = bytesOf(text);
}

void MemoryFiles::makeSpecial(const std::filesystem::path& path)
{
    add(path, FileKind::Special);
}

void MemoryFiles::makeLink(const std::filesystem::path& path, const std::filesystem::path& target)
{
    add(path, FileKind::Link).target = target;
}

void MemoryFiles::makeUnreadable(const std::filesystem::path& path)
{
    disk_.find(path, MemoryDisk::LastLink::Keep).value()->isReadable = false;
}

MemoryDisk::Node& MemoryFiles::add(const std::filesystem::path& path, FileKind kind)
{
    if (const auto existing = disk_.find(path, MemoryDisk::LastLink::Keep)) {
        existing.value()->kind = kind;
        return *existing.value();
    }
    if (!disk_.find(path.parent_path(), MemoryDisk::LastLink::Follow)) {
        add(path.parent_path(), FileKind::Directory);
    }
    return *disk_.add(path, kind).value();
}

} // namespace tocca::platform::memory

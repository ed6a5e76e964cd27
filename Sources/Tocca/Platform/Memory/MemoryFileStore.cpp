#include "Platform/Memory/MemoryFileStore.h"

#include <memory>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace tocca::platform::memory {

namespace {

using Node = MemoryDisk::Node;
using LastLink = MemoryDisk::LastLink;

bool isWithin(const Node& node, const Node& directory)
{
    return &node == &directory || (node.parent != &node && isWithin(*node.parent, directory));
}

} // namespace

Result<FileStatus> MemoryFileStore::status(const std::filesystem::path& path) const
{
    const auto node = disk_.find(path, LastLink::Keep);
    if (node) {
        return FileStatus{.kind = node.value()->kind,
                          .identity = {.device = 1, .number = node.value()->number},
                          .byteCount = node.value()->bytes ? node.value()->bytes->size() : 0};
    }
    if (node.error() == std::errc::no_such_file_or_directory || node.error() == std::errc::not_a_directory) {
        return FileStatus{};
    }
    return failure(path, node.error());
}

Result<std::filesystem::path> MemoryFileStore::resolve(const std::filesystem::path& path) const
{
    const auto node = disk_.find(path, LastLink::Follow);
    if (!node) {
        return failure(path, node.error());
    }
    return disk_.pathOf(*node.value());
}

Outcome MemoryFileStore::makeDirectories(const std::filesystem::path& path)
{
    if (const auto existing = disk_.find(path, LastLink::Follow)) {
        return existing.value()->kind == FileKind::Directory ? Outcome(std::monostate{})
                                                             : failure(path, std::errc::file_exists);
    }
    if (!path.is_absolute()) {
        return failure(path, std::errc::no_such_file_or_directory);
    }
    if (isReadOnly) {
        return failure(path, std::errc::read_only_file_system);
    }
    if (auto parent = makeDirectories(path.parent_path()); !parent) {
        return parent;
    }
    const auto added = disk_.add(path, FileKind::Directory);
    return added ? Outcome(std::monostate{}) : failure(path, added.error());
}

Outcome MemoryFileStore::copyEntry(const std::filesystem::path& from, const std::filesystem::path& to)
{
    const auto original = disk_.find(from, LastLink::Keep);
    if (!original) {
        return failure(from, original.error());
    }
    const Node& source = *original.value();
    if (source.kind == FileKind::Special) {
        return failure(from, std::errc::invalid_argument);
    }
    if (isReadOnly) {
        return failure(to, std::errc::read_only_file_system);
    }
    if (source.kind == FileKind::File && !source.isReadable) {
        return failure(from, std::errc::permission_denied);
    }
    const std::size_t size = source.bytes ? source.bytes->size() : 0;
    if (size > freeBytes) {
        return failure(to, std::errc::no_space_on_device);
    }
    const auto added = disk_.add(to, source.kind);
    if (!added) {
        return failure(to, added.error());
    }
    added.value()->bytes = source.bytes;
    added.value()->target = source.target;
    freeBytes -= size;
    return std::monostate{};
}

Outcome MemoryFileStore::writeFile(const std::filesystem::path& to, std::span<const std::byte> bytes)
{
    if (isReadOnly) {
        return failure(to, std::errc::read_only_file_system);
    }
    if (bytes.size() > freeBytes) {
        return failure(to, std::errc::no_space_on_device);
    }
    const auto added = disk_.add(to, FileKind::File);
    if (!added) {
        return failure(to, added.error());
    }
    added.value()->bytes = std::make_shared<const std::vector<std::byte>>(bytes.begin(), bytes.end());
    freeBytes -= bytes.size();
    return std::monostate{};
}

Outcome MemoryFileStore::move(const std::filesystem::path& from, const std::filesystem::path& to)
{
    if (isReadOnly) {
        return failure(from, std::errc::read_only_file_system);
    }
    const auto moved = disk_.find(from, LastLink::Keep);
    if (!moved) {
        return failure(from, moved.error());
    }
    if (const auto parent = disk_.find(to.parent_path(), LastLink::Follow);
        parent && isWithin(*parent.value(), *moved.value())) {
        return failure(from, std::errc::invalid_argument);
    }
    auto node = MemoryDisk::detach(*moved.value());
    const auto attached = disk_.attach(to, node);
    if (!attached) {
        static_cast<void>(disk_.attach(from, node));
        return failure(to, attached.error());
    }
    return std::monostate{};
}

Result<bool> MemoryFileStore::exchange(const std::filesystem::path& first,
                                       const std::filesystem::path& second)
{
    if (isReadOnly) {
        return failure(first, std::errc::read_only_file_system);
    }
    const auto one = disk_.find(first, LastLink::Keep);
    const auto other = disk_.find(second, LastLink::Keep);
    if (!one || !other) {
        return failure(one ? second : first, one ? other.error() : one.error());
    }
    if (isWithin(*one.value(), *other.value()) || isWithin(*other.value(), *one.value())) {
        return failure(first, std::errc::invalid_argument);
    }
    if (!canExchange) {
        return false;
    }
    auto a = MemoryDisk::detach(*one.value());
    auto b = MemoryDisk::detach(*other.value());
    static_cast<void>(disk_.attach(second, a));
    static_cast<void>(disk_.attach(first, b));
    return true;
}

Outcome MemoryFileStore::removeTree(const std::filesystem::path& path)
{
    const auto node = disk_.find(path, LastLink::Keep);
    if (!node) {
        return std::monostate{};
    }
    if (isReadOnly) {
        return failure(path, std::errc::read_only_file_system);
    }
    MemoryDisk::detach(*node.value());
    return std::monostate{};
}

Outcome MemoryFileStore::moveToTrash(const std::filesystem::path& path, const std::filesystem::path& original)
{
    if (!hasTrash) {
        return failure(path, std::errc::cross_device_link);
    }
    const std::filesystem::path trash = kTrash;
    if (auto made = makeDirectories(trash); !made) {
        return made;
    }
    const auto number = disk_.find(trash, LastLink::Keep).value()->entries.size() + 1;
    return move(path, trash / (std::to_string(number) + " " + original.filename().string()));
}

Outcome MemoryFileStore::syncDirectory(const std::filesystem::path& directory)
{
    const auto node = disk_.find(directory, LastLink::Follow);
    if (!node || node.value()->kind != FileKind::Directory) {
        return failure(directory, node ? std::errc::not_a_directory : node.error());
    }
    return std::monostate{};
}

} // namespace tocca::platform::memory

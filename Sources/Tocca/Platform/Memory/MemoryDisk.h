#pragma once

#include "Platform/FileStore.h"
#include "Support/SharedBytes.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

namespace tocca::platform::memory {

/// A tree of directories, files, links and special things, which has absolute paths.
class MemoryDisk {
public:
    struct Node {
        std::string name;
        FileKind kind = FileKind::Directory;
        std::uint64_t number = 0;
        Node* parent = nullptr; ///< the root is its own
        SharedBytes bytes;
        std::filesystem::path target;
        bool isReadable = true;
        std::vector<std::unique_ptr<Node>> entries; ///< in the order in which they were made
    };

    enum class LastLink { Keep, Follow };

    MemoryDisk();

    [[nodiscard]] Result<Node*, std::errc> find(const std::filesystem::path& path, LastLink lastLink) const;
    [[nodiscard]] std::filesystem::path pathOf(const Node& node) const;

    /// Adds a node where there is none; its parent must exist.
    Result<Node*, std::errc> add(const std::filesystem::path& path, FileKind kind);

    /// Takes a node other than the root out of the tree.
    static std::unique_ptr<Node> detach(Node& node);

    /// Puts a node that is in no tree where there is none.
    Result<Node*, std::errc> attach(const std::filesystem::path& path, std::unique_ptr<Node>& node);

private:
    std::unique_ptr<Node> root_;
    std::uint64_t lastNumber_ = 0;
};

/// How a failure is told to people.
[[nodiscard]] Error failure(const std::filesystem::path& path, std::errc reason);

} // namespace tocca::platform::memory

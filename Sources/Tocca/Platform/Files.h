#pragma once

#include "Support/Result.h"
#include "Support/SharedBytes.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace tocca::platform {

/// Reading of files without ever waiting for anything but the disk. Threads: any.
class Files {
public:
    virtual ~Files() = default;

    /// Whether anything exists at `path`, links followed.
    [[nodiscard]] virtual bool exists(const std::filesystem::path& path) const = 0;

    /// The names of a directory's entries but "." and "..", in the file system's order.
    [[nodiscard]] virtual Result<std::vector<std::string>>
    list(const std::filesystem::path& directory) const = 0;

    /// The bytes of a regular file of at most `limit` bytes. Anything else (a directory, FIFO, socket, device, or a larger
    /// file) is an error at once, without reading or waiting.
    [[nodiscard]] virtual Result<SharedBytes> read(const std::filesystem::path& path,
                                                   std::size_t limit) const = 0;
};

} // namespace tocca::platform

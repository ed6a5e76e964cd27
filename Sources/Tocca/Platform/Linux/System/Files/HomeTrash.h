#pragma once

#include "Support/Result.h"

#include <filesystem>
#include <utility>

namespace tocca::platform::linux {

/// The trash of the user's home, as file managers show it.
///
/// Threads: any.
/// Errors: the name and the system's reason; the thing stays where it is. One on another file system is an error.
/// Source: The FreeDesktop.org Trash specification, version 1.0.
class HomeTrash {
public:
    /// `folder` need not exist.
    explicit HomeTrash(std::filesystem::path folder)
        : folder_(std::move(folder))
    {}

    /// Moves a thing in, so that restoring it puts it at `original`.
    Outcome put(const std::filesystem::path& path, const std::filesystem::path& original) const;

private:
    std::filesystem::path folder_;
};

} // namespace tocca::platform::linux

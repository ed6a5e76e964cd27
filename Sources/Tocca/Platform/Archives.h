#pragma once

#include "Support/Result.h"
#include "Support/SharedBytes.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace tocca::platform {

/// What an archive says of one thing in it, unchecked.
struct ArchiveEntry {
    enum class Kind { File, Directory, Link, Special };

    std::string path; ///< as it is written there, with "/" between folders
    Kind kind = Kind::File;
    bool isEncrypted = false;
};

/// An archive that is read once, from its first thing to its last.
///
/// Threads: any, one at a time.
/// Errors: why the archive cannot be read on, in words for people.
class Archive {
public:
    virtual ~Archive() = default;

    /// The next thing, or nothing at the end.
    [[nodiscard]] virtual Result<std::optional<ArchiveEntry>> next() = 0;

    /// The next bytes of the thing that `next` has told of; 0 at its end, when its checksum has been compared.
    [[nodiscard]] virtual Result<std::size_t> read(std::span<std::byte> into) = 0;
};

/// Opens archives in the ZIP format. Threads: any.
class Archives {
public:
    virtual ~Archives() = default;

    /// Errors: why the bytes are no archive, or none that is whole.
    [[nodiscard]] virtual Result<std::unique_ptr<Archive>> open(const SharedBytes& bytes) const = 0;
};

} // namespace tocca::platform

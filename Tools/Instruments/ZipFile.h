#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tocca::instruments {

/// A file in an archive, told as it is or wrongly.
struct ZipEntry {
    std::string path;
    std::string bytes;
    bool isLink = false;
    bool isEncrypted = false;
    bool hasWrongChecksum = false;
};

/// A ZIP archive whose files are stored as they are, written by hand.
[[nodiscard]] std::string zipFile(const std::vector<ZipEntry>& entries);

} // namespace tocca::instruments

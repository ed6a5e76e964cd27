#pragma once

#include "Platform/Archives.h"
#include "Platform/SoundDecoder.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tocca::platform::memory {

/// Archives of one fixed content, whatever their bytes; with nothing in it none can be opened.
class MemoryArchives : public Archives {
public:
    [[nodiscard]] Result<std::unique_ptr<Archive>> open(const SharedBytes& bytes) const override;

    std::vector<std::pair<ArchiveEntry, std::string>> entries;
    bool isCutOff = false; ///< reading ends with an error instead of the end
};

/// A decoder that knows one format: the bytes of a file are the samples, in 128ths of full scale, at 1000 Hz.
class MemorySoundDecoder : public SoundDecoder {
public:
    [[nodiscard]] Result<DecodedSound> decode(std::span<const std::byte> file,
                                              double longestSeconds) const override;
};

} // namespace tocca::platform::memory

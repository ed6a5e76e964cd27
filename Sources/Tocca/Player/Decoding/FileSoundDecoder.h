#pragma once

#include "Platform/SoundDecoder.h"

namespace tocca::player {

/// The player's decoder for those who want the numbers: of files up to 64 MB, without taking any silence away.
class FileSoundDecoder : public platform::SoundDecoder {
public:
    [[nodiscard]] Result<platform::DecodedSound> decode(std::span<const std::byte> file,
                                                        double longestSeconds) const override;
};

} // namespace tocca::player

#pragma once

#include "Platform/Archives.h"

namespace tocca::platform::linux {

/// Archives read by libarchive, which follows the list at an archive's end, so one that is cut off does not open.
class ZipArchives : public Archives {
public:
    [[nodiscard]] Result<std::unique_ptr<Archive>> open(const SharedBytes& bytes) const override;
};

} // namespace tocca::platform::linux

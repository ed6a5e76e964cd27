#pragma once

#include "Audio/Packs/SoundPackInfo.h"
#include "Instruments/TemporaryDirectory.h"

namespace tocca::latency {

/// A sound pack whose one recording is a click: it begins with its first sample and ends before the next stroke, so that what
/// was recorded tells its beginning to the frame.
///
/// Lifetime: the folder is deleted with the object.
class ClickPack {
public:
    /// Errors: throws `std::runtime_error` when the files cannot be written.
    ClickPack();

    [[nodiscard]] audio::SoundPackInfo info() const;

private:
    instruments::TemporaryDirectory folder_;
};

} // namespace tocca::latency

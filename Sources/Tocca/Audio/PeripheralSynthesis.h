#pragma once

#include "Audio/AcousticCatalogues.h"
#include "Support/SharedBytes.h"

#include <string>
#include <unordered_map>

namespace tocca::audio {

/// Renders a click of two decaying partials as a complete WAV file: 44.1 kHz, mono, 16 bit, header of 44 bytes.
///
/// Units: `duration` in seconds, frequencies in Hz, `decay` in 1/s, `amplitude` linear. All are finite, `duration` ≥ 0.
/// Threads: any.
[[nodiscard]] SharedBytes synthesizeWav(double duration, double freq1, double freq2, double decay,
                                        double amplitude);

/// The synthesised sounds of mouse buttons and wheel. Threads: audio queue.
class PeripheralSounds {
public:
    /// Renders every sound; until then there is none.
    void precompute();

    /// The click kept under `key`, else the default profile's left click, else null.
    [[nodiscard]] SharedBytes mouseClick(const std::string& key) const;

    /// The wheel's tick, or null.
    [[nodiscard]] const SharedBytes& scrollRatchet() const noexcept { return cachedScrollRatchet_; }

    /// The name a profile's click is kept under: right has a sound of its own, every other button has the left one's.
    [[nodiscard]] static std::string clickKey(MouseSwitchProfile profile, MouseButton button);

private:
    std::unordered_map<std::string, SharedBytes> cachedMouseClicks_;
    SharedBytes cachedScrollRatchet_;
};

} // namespace tocca::audio

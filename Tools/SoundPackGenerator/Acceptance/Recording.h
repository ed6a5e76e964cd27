#pragma once

#include "Analysis/Likeness.h"
#include "Analysis/Spectrum.h"
#include "Model/Slot.h"
#include "Output/WavFile.h"

#include <string>
#include <vector>

namespace tocca::soundpack {

/// How a file begins and ends.
struct Edges {
    double onsetMs;      ///< first sample above a tenth of the peak
    double firstSoundMs; ///< first sample above a hundredth of the peak
    double attackMs;
    int firstSample; ///< as it stands in the file, magnitude
    int lastSample;
    double lastStep;  ///< largest difference of neighbours in the last 18 ms; full scale is 1
    double lastLevel; ///< last 10 ms, dBFS
    double offsetDb;  ///< mean of all samples, dBFS
};

/// One file of a pack and everything that is measured on it alone. Full scale is 1.
struct Recording {
    std::string name; ///< "holy-panda/press_space_3.wav"
    WavFile file;
    std::vector<double> signal;
    std::size_t onset;

    double durationMs;
    double peakDb;
    double lufs;
    Edges edges;
    Spectrum spectrum;
    double tonality;
    double effectiveBands;
    double earlyDecayMs;
    double decay20Ms; ///< from the onset until 20 dB below the maximum for good
    double decay40Ms;
    Fingerprint fingerprint;
    std::vector<double> clicks; ///< `clickEnvelopeDb` from the onset on
};

Recording measure(std::string name, WavFile file);

/// All variants of one slot.
struct SlotRecordings {
    Slot slot;
    std::vector<Recording> variants;
};

/// All slots of one pack, in the order of kSlots.
struct PackRecordings {
    std::string folder;
    bool isSwitch; ///< a keyboard and not a typewriter
    std::size_t fileCount;
    std::vector<SlotRecordings> slots;

    const SlotRecordings& of(const Slot& slot) const;

    const SlotRecordings& standardPress() const { return of({Key::Standard, Action::Press}); }
};

/// Reads and measures every built-in pack below `directory`, in the order of `packs()`.
///
/// Threads: uses every core and returns when all of them are done.
Result<std::vector<PackRecordings>> readPacks(const std::filesystem::path& directory);

} // namespace tocca::soundpack

#pragma once

#include "Player/Decoding/PcmClip.h"
#include "Support/Result.h"
#include "Support/SharedBytes.h"

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <unordered_map>

namespace tocca::player {

/// Decoded recordings at the device's rate, found by the identity of the bytes they come from.
///
/// A recording stays until its bytes are gone, the rate changes, or the budget needs its room; then the one that was not
/// asked for longest goes first. The latest one is always kept, however large. Bytes that cannot be decoded are
/// remembered as well, so that a broken file is looked into once.
/// Threads: audio queue.
class PcmCache {
public:
    using Clip = std::shared_ptr<const PcmClip>;

    explicit PcmCache(std::size_t budgetBytes) noexcept
        : budgetBytes_(budgetBytes)
    {}

    /// Returns the recording in `bytes` at `sampleRate` (Hz), decoded now unless it was before.
    /// Errors: why the bytes cannot be decoded, in a sentence for people.
    [[nodiscard]] Result<Clip> find(const SharedBytes& bytes, double sampleRate);

    /// What the decoded recordings take. Units: bytes.
    [[nodiscard]] std::size_t byteCount() const noexcept { return byteCount_; }

    /// How many recordings were decoded so far.
    [[nodiscard]] std::uint64_t decodeCount() const noexcept { return decodeCount_; }

private:
    struct Entry {
        std::weak_ptr<const std::vector<std::byte>>
            bytes; // its control block keeps the identity from being reused
        const void* key;
        Result<Clip> clip;
        std::size_t cost;
    };

    using Entries = std::list<Entry>;

    void remove(Entries::iterator entry);
    void makeRoom();

    const std::size_t budgetBytes_;
    Entries entries_; // the latest first
    std::unordered_map<const void*, Entries::iterator> byAddress_;
    double sampleRate_ = 0.0;
    std::size_t byteCount_ = 0;
    std::uint64_t decodeCount_ = 0;
};

} // namespace tocca::player

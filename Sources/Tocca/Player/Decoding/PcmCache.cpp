#include "Player/Decoding/PcmCache.h"

#include "Player/Decoding/Decoder.h"
#include "Player/Decoding/Resampler.h"

#include <iterator>
#include <utility>

namespace tocca::player {

namespace {

Result<PcmCache::Clip> decodeAt(const SharedBytes& bytes, double sampleRate)
{
    auto decoded = decode(*bytes);
    if (!decoded) {
        return decoded.error();
    }
    auto converted = resampled(std::move(decoded.value()), sampleRate);
    if (!converted) {
        return converted.error();
    }
    return PcmCache::Clip(std::make_shared<const PcmClip>(std::move(converted.value())));
}

} // namespace

Result<PcmCache::Clip> PcmCache::find(const SharedBytes& bytes, double sampleRate)
{
    if (bytes == nullptr) {
        return Error{"There is no file."};
    }
    if (sampleRate != sampleRate_) {
        entries_.clear();
        byAddress_.clear();
        byteCount_ = 0;
        sampleRate_ = sampleRate;
    }
    if (const auto known = byAddress_.find(bytes.get()); known != byAddress_.end()) {
        if (known->second->bytes.lock() == bytes) {
            entries_.splice(entries_.begin(), entries_, known->second);
            return entries_.front().clip;
        }
        remove(known->second);
    }
    ++decodeCount_;
    auto clip = decodeAt(bytes, sampleRate);
    const std::size_t cost = sizeof(Entry) + (clip ? clip.value()->byteCount() : 0);
    entries_.push_front({bytes, bytes.get(), std::move(clip), cost});
    byAddress_[bytes.get()] = entries_.begin();
    byteCount_ += cost;
    makeRoom();
    return entries_.front().clip;
}

void PcmCache::remove(Entries::iterator entry)
{
    byteCount_ -= entry->cost;
    byAddress_.erase(entry->key);
    entries_.erase(entry);
}

void PcmCache::makeRoom()
{
    for (auto entry = std::next(entries_.begin()); entry != entries_.end();) {
        const auto next = std::next(entry);
        if (entry->bytes.expired()) {
            remove(entry);
        }
        entry = next;
    }
    while (byteCount_ > budgetBytes_ && entries_.size() > 1) {
        remove(std::prev(entries_.end()));
    }
}

} // namespace tocca::player

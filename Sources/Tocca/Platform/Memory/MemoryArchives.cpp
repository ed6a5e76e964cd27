#include "Platform/Memory/MemoryArchives.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace tocca::platform::memory {

namespace {

class MemoryArchive final : public Archive {
public:
    explicit MemoryArchive(const MemoryArchives& archives)
        : archives_(archives)
    {}

    Result<std::optional<ArchiveEntry>> next() override
    {
        if (next_ == archives_.entries.size()) {
            return archives_.isCutOff ? Result<std::optional<ArchiveEntry>>(Error{"the archive is cut off"})
                                      : std::optional<ArchiveEntry>();
        }
        rest_ = archives_.entries[next_].second;
        return std::optional(archives_.entries[next_++].first);
    }

    Result<std::size_t> read(std::span<std::byte> into) override
    {
        const std::string_view now = rest_.substr(0, into.size());
        std::transform(now.begin(), now.end(), into.begin(),
                       [](char c) { return static_cast<std::byte>(c); });
        rest_.remove_prefix(now.size());
        return now.size();
    }

private:
    const MemoryArchives& archives_;
    std::size_t next_ = 0;
    std::string_view rest_;
};

} // namespace

Result<std::unique_ptr<Archive>> MemoryArchives::open(const SharedBytes& /*bytes*/) const
{
    if (entries.empty()) {
        return Error{"this is no archive"};
    }
    return std::unique_ptr<Archive>(std::make_unique<MemoryArchive>(*this));
}

Result<DecodedSound> MemorySoundDecoder::decode(std::span<const std::byte> file, double longestSeconds) const
{
    constexpr double kSampleRate = 1000.0;
    constexpr float kFullScale = 128.0F;
    DecodedSound sound{.channels = {{}}, .sampleRate = kSampleRate};
    for (const std::byte byte : file) {
        if (static_cast<double>(sound.frameCount()) >= longestSeconds * kSampleRate) {
            break;
        }
        sound.channels.front().push_back(static_cast<float>(static_cast<signed char>(byte)) / kFullScale);
    }
    return sound;
}

} // namespace tocca::platform::memory

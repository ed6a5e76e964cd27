#include "Instruments/MemorySearch.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <span>
#include <sstream>
#include <system_error>
#include <unistd.h>

namespace tocca::instruments {

namespace {

constexpr std::size_t kMostStride = 1024;
constexpr std::size_t kChunk = std::size_t{4} << 20U;

std::vector<std::size_t> strides()
{
    std::vector<std::size_t> result;
    for (std::size_t stride = 1; stride <= kMostStride; stride += stride < 8 ? 1 : 4) {
        result.push_back(stride);
    }
    return result;
}

/// Finds runs of one sequence in bytes.
class Searcher {
public:
    Searcher(const std::vector<std::uint8_t>& sequence, std::size_t run)
        : sequence_(sequence)
        , run_(run)
    {
        for (std::size_t i = 0; i + run <= sequence.size(); ++i) {
            starts_.at(sequence[i]).push_back(i);
        }
    }

    /// The place, stride and first number of a run that begins in the first `count` bytes.
    [[nodiscard]] std::optional<MemoryFinding> search(std::span<const std::uint8_t> bytes,
                                                      std::size_t count) const
    {
        for (std::size_t at = 0; at < count; ++at) {
            for (const std::size_t first : starts_[bytes[at]]) {
                for (const std::size_t stride : strides_) {
                    if (at + stride * (run_ - 1) < bytes.size() && isRun(bytes, at, first, stride)) {
                        return MemoryFinding{
                            .sequence = 0, .first = first, .stride = stride, .address = at, .mapping = {}};
                    }
                }
            }
        }
        return std::nullopt;
    }

private:
    [[nodiscard]] bool isRun(std::span<const std::uint8_t> bytes, std::size_t at, std::size_t first,
                             std::size_t stride) const
    {
        for (std::size_t i = 1; i < run_; ++i) {
            if (bytes[at + i * stride] != sequence_[first + i]) {
                return false;
            }
        }
        return true;
    }

    const std::vector<std::uint8_t>& sequence_;
    const std::size_t run_;
    const std::vector<std::size_t> strides_ = strides();
    std::array<std::vector<std::size_t>, 256>
        starts_; // where in the sequence a run may begin, by its first number
};

} // namespace

std::optional<MemoryFinding>
findInMemory(pid_t process, const std::vector<std::vector<std::uint8_t>>& sequences, std::size_t run)
{
    std::vector<Searcher> searchers;
    searchers.reserve(sequences.size());
    for (const auto& sequence : sequences) {
        searchers.emplace_back(sequence, run);
    }
    const std::string place = "/proc/" + std::to_string(process);
    const int memory = ::open((place + "/mem").c_str(), O_RDONLY | O_CLOEXEC);
    if (memory < 0) {
        throw std::system_error(errno, std::generic_category(), place + "/mem");
    }
    std::optional<MemoryFinding> found;
    std::vector<std::uint8_t> buffer(kChunk + run * kMostStride);
    std::ifstream maps(place + "/maps");
    for (std::string line; !found && std::getline(maps, line);) {
        std::istringstream words(line);
        std::uintptr_t begin = 0;
        std::uintptr_t end = 0;
        char dash = 0;
        std::string rights;
        words >> std::hex >> begin >> dash >> end >> rights;
        for (std::uintptr_t at = begin; !found && rights.starts_with("rw") && at < end; at += kChunk) {
            const std::size_t wanted = std::min<std::size_t>(buffer.size(), end - at);
            const ssize_t got = ::pread(memory, buffer.data(), wanted, static_cast<off_t>(at));
            if (got <= 0) {
                break; // a device
            }
            const std::span<const std::uint8_t> bytes(buffer.data(), static_cast<std::size_t>(got));
            for (std::size_t i = 0; i < searchers.size() && !found; ++i) {
                found = searchers[i].search(bytes, std::min(kChunk, bytes.size()));
                if (found) {
                    found->sequence = i;
                    found->address += at;
                    found->mapping = line;
                }
            }
        }
    }
    ::close(memory);
    return found;
}

} // namespace tocca::instruments

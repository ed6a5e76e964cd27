#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace tocca::instruments {

/// Where a process keeps what it should not.
struct MemoryFinding {
    std::size_t sequence = 0;   ///< which of those looked for
    std::size_t first = 0;      ///< from which of its numbers on
    std::size_t stride = 0;     ///< bytes from one number to the next
    std::uintptr_t address = 0; ///< of the first
    std::string mapping;        ///< as /proc names it
};

/// Looks through the whole writable memory of a process for `run` numbers in a row out of one of `sequences`, all below 256 and none of them 0,
/// as bytes that lie equally far from each other: one after the other up to 8 bytes apart, then every multiple of 4 up to 1,024.
/// Wider numbers are found by their lowest bytes. Nothing when there is no such run.
///
/// Threads: any. Errors: throws `std::system_error` when the memory cannot be read. Order: the process should stand still.
[[nodiscard]] std::optional<MemoryFinding>
findInMemory(pid_t process, const std::vector<std::vector<std::uint8_t>>& sequences, std::size_t run);

} // namespace tocca::instruments

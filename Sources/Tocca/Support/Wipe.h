#pragma once

#include <cstddef>
#include <cstring>

namespace tocca {

/// Clears memory that nothing reads any more, which a compiler would otherwise spare itself: what was typed must not stay behind.
///
/// Threads: any. Real-time: wait-free.
inline void wipe(void* memory, std::size_t size) noexcept
{
    std::memset(memory, 0, size);
    asm volatile("" : : "r"(memory) : "memory"); // somebody might read it
}

} // namespace tocca

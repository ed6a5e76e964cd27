#pragma once

#include <cstdlib>
#include <memory>

namespace tocca::platform::linux {

/// Frees what xcb has allocated.
struct XFree {
    void operator()(void* memory) const noexcept
    {
        std::free(memory); // xcb hands out memory of malloc
    }
};

/// A reply or event of the X server, or null.
template <class T>
using XReply = std::unique_ptr<T, XFree>;

} // namespace tocca::platform::linux

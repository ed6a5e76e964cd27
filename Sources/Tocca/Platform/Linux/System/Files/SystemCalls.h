#pragma once

#include <cerrno>
#include <cstddef>
#include <string_view>

#include <unistd.h>

namespace tocca::platform::linux {

/// Makes a system call, and makes it again as often as a signal has interrupted it.
template <class Call>
auto retried(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

/// Writes all of `bytes`. Errors: false, and the reason in `errno`.
[[nodiscard]] inline bool writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = retried([=] { return ::write(descriptor, bytes.data(), bytes.size()); });
        if (count < 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace tocca::platform::linux

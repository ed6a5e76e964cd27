#include "Platform/Linux/System/WaylandSession.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace tocca::platform::linux {

bool isWaylandSession()
{
    const char* const display = std::getenv("WAYLAND_DISPLAY"); // NOLINT(concurrency-mt-unsafe)
    if (display == nullptr || *display == '\0') {
        return false;
    }
    std::filesystem::path socket(display);
    if (socket.is_relative()) {
        const char* const runtime = std::getenv("XDG_RUNTIME_DIR"); // NOLINT(concurrency-mt-unsafe)
        if (runtime == nullptr) {
            return false;
        }
        socket = std::filesystem::path(runtime) / socket;
    }
    std::error_code error;
    return std::filesystem::is_socket(socket, error);
}

} // namespace tocca::platform::linux

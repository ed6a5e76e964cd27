#include "Platform/Linux/Audio/SocketWatch.h"

#include <sys/inotify.h>
#include <sys/types.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>

namespace tocca::platform::linux {

namespace {

constexpr std::uint32_t kAppearance = IN_CREATE | IN_MOVED_TO;

std::string runtimeDirectory()
{
    const char* const directory = std::getenv("XDG_RUNTIME_DIR"); // NOLINT(concurrency-mt-unsafe)
    return directory != nullptr ? directory : "";
}

/// Whether `name` is that of a sound server's socket; other programs put theirs there too.
bool isOfServer(std::string_view name)
{
    return name.starts_with("pipewire-") || name == "pulse" || name == "native";
}

} // namespace

SocketWatch::SocketWatch(ControlLoop& loop, std::function<void()> call)
    : call_(std::move(call))
{
    const std::string directory = runtimeDirectory();
    if (directory.empty()) {
        return;
    }
    descriptor_ = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (descriptor_ < 0) {
        return;
    }
    inotify_add_watch(descriptor_, directory.c_str(), kAppearance | IN_ONLYDIR);
    watchServerDirectory();
    watch_ = std::make_unique<ControlWatch>(loop, descriptor_, [this] { drain(); });
}

void SocketWatch::drain()
{
    alignas(inotify_event) std::array<std::byte, 4096> events{};
    bool isServer = false;
    for (ssize_t size = 0; (size = read(descriptor_, events.data(), events.size())) > 0;) {
        for (std::size_t at = 0; at < static_cast<std::size_t>(size);) {
            const auto* const event = reinterpret_cast<const inotify_event*>(events.data() + at);
            isServer = isServer || (event->len > 0 && isOfServer(static_cast<const char*>(event->name)));
            at += sizeof(inotify_event) + event->len;
        }
    }
    if (isServer) {
        // PulseAudio's socket is in a directory of its own, which may have appeared just now.
        watchServerDirectory();
        call_();
    }
}

void SocketWatch::watchServerDirectory()
{
    inotify_add_watch(descriptor_, (runtimeDirectory() + "/pulse").c_str(), kAppearance | IN_ONLYDIR);
}

} // namespace tocca::platform::linux

#include "Platform/Linux/System/LinuxStandardOutput.h"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace tocca::platform::linux {

LinuxStandardOutput::LinuxStandardOutput(int descriptor)
    : descriptor_(descriptor)
{
    struct sigaction ignore {};

    ignore.sa_handler = SIG_IGN;
    ::sigaction(SIGPIPE, &ignore, nullptr);
}

void LinuxStandardOutput::reserveDescriptors() noexcept
{
    // `open` returns the lowest free number, so the loop ends with the first that is none of the three.
    int descriptor = 0;
    do {
        descriptor = ::open("/dev/null", O_RDWR);
    } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    if (descriptor >= 0) {
        ::close(descriptor);
    }
}

void LinuxStandardOutput::printLine(std::string_view line)
{
    const std::lock_guard lock(mutex_);
    text_.assign(line);
    text_.push_back('\n');
    std::string_view rest = text_;
    while (!rest.empty()) {
        pollfd output{.fd = descriptor_, .events = POLLOUT, .revents = 0};
        if (::poll(&output, 1, 0) <= 0) {
            return;
        }
        const ssize_t count = ::write(descriptor_, rest.data(), rest.size());
        if (count < 0 && errno != EINTR) {
            return;
        }
        if (count > 0) {
            rest.remove_prefix(static_cast<std::size_t>(count));
        }
    }
}

} // namespace tocca::platform::linux

#pragma once

#include <array>
#include <csignal>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

#include <grp.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tocca::platform::linux {

/// A piece of work in a process of its own, which may be killed at any moment.
///
/// Threads: the process that starts it must have one only.
class ChildProcess {
public:
    enum class Rights { Same, Ordinary };

    /// The user that `Rights::Ordinary` stands for where the tests run as the superuser.
    static constexpr uid_t kNobody = 65534;

    /// Starts `work`, whose result `finish` returns.
    explicit ChildProcess(const std::function<std::string()>& work, Rights rights = Rights::Same)
    {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0 || (id_ = ::fork()) < 0) {
            throw std::runtime_error("pipe or fork");
        }
        if (id_ == 0) {
            const bool isReady =
                rights == Rights::Same || ::getuid() != 0 ||
                (::setgroups(0, nullptr) == 0 && ::setgid(kNobody) == 0 && ::setuid(kNobody) == 0);
            const std::string said = isReady ? work() : "cannot become an ordinary user";
            const ssize_t written = ::write(ends[1], said.data(), said.size());
            ::_exit(written == static_cast<ssize_t>(said.size()) ? 0 : 1);
        }
        ::close(ends[1]);
        output_ = ends[0];
    }

    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    ~ChildProcess()
    {
        if (id_ > 0) {
            kill();
            finish();
        }
        ::close(output_);
    }

    void kill() const { ::kill(id_, SIGKILL); }

    /// Waits for the end and returns what the work returned, nothing when it was killed.
    std::optional<std::string> finish()
    {
        std::string said;
        std::array<char, 1024> chunk{}; // NOLINT(readability-magic-numbers)
        for (ssize_t count = 0; (count = ::read(output_, chunk.data(), chunk.size())) > 0;) {
            said.append(chunk.data(), static_cast<std::size_t>(count));
        }
        int status = 0;
        ::waitpid(id_, &status, 0);
        id_ = -1;
        return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? std::optional(said) : std::nullopt;
    }

private:
    pid_t id_ = -1;
    int output_ = -1;
};

} // namespace tocca::platform::linux

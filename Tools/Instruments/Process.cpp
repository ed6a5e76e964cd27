#include "Instruments/Process.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace tocca::instruments {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kExitPoll{5};

void check(int error, const std::string& what)
{
    if (error != 0) {
        throw std::system_error(error, std::generic_category(), what);
    }
}

std::vector<std::string> changedEnvironment(const Process::Environment& changes)
{
    std::vector<std::string> result;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string variable(*entry);
        if (!changes.contains(variable.substr(0, variable.find('=')))) {
            result.push_back(variable);
        }
    }
    for (const auto& [name, value] : changes) {
        if (value) {
            result.push_back(name + "=" + *value);
        }
    }
    return result;
}

std::vector<char*> pointers(std::vector<std::string>& strings)
{
    std::vector<char*> result;
    result.reserve(strings.size() + 1);
    for (std::string& string : strings) {
        result.push_back(string.data());
    }
    result.push_back(nullptr);
    return result;
}

milliseconds until(Clock::time_point end)
{
    return std::max(milliseconds{0}, std::chrono::ceil<milliseconds>(end - Clock::now()));
}

} // namespace

Process::Process(const std::vector<std::string>& command, const Environment& changes)
{
    std::array<int, 2> ends{};
    check(pipe2(ends.data(), O_CLOEXEC) == 0 ? 0 : errno, "pipe2");
    pipe_ = ends[0];

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);

    std::vector<std::string> arguments = command;
    std::vector<std::string> environment = changedEnvironment(changes);
    const int error = posix_spawnp(&id_, arguments.front().c_str(), &actions, nullptr,
                                   pointers(arguments).data(), pointers(environment).data());
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    if (error != 0) {
        close(pipe_);
    }
    check(error, arguments.front());
}

Process::~Process()
{
    if (isRunning()) {
        signal(SIGKILL);
        int status = 0;
        waitpid(id_, &status, 0);
    }
    close(pipe_);
}

bool Process::waitForLine(std::string_view text, milliseconds deadline, int count)
{
    const auto end = Clock::now() + deadline;
    while (countLines(text) < count) {
        if (Clock::now() >= end || !readSome(until(end))) {
            return false;
        }
    }
    return true;
}

int Process::countLines(std::string_view text) const
{
    int count = 0;
    std::size_t begin = 0;
    for (std::size_t end = output_.find('\n'); end != std::string::npos; end = output_.find('\n', begin)) {
        if (std::string_view(output_).substr(begin, end - begin).find(text) != std::string_view::npos) {
            ++count;
        }
        begin = end + 1;
    }
    return count;
}

void Process::signal(int number) const
{
    if (!status_) {
        kill(id_, number);
    }
}

std::optional<int> Process::waitForExit(milliseconds deadline)
{
    const auto end = Clock::now() + deadline;
    while (isRunning()) {
        if (Clock::now() >= end) {
            return std::nullopt;
        }
        // The output is read meanwhile: a program that fills its pipe would never end.
        if (!readSome(std::min(kExitPoll, until(end)))) {
            poll(nullptr, 0, static_cast<int>(kExitPoll.count()));
        }
    }
    while (readSome(milliseconds{0})) {
    }
    return status_;
}

bool Process::isRunning()
{
    int status = 0;
    if (!status_ && waitpid(id_, &status, WNOHANG) == id_) {
        status_ = WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
    }
    return !status_;
}

bool Process::readSome(milliseconds timeout)
{
    pollfd readable{.fd = pipe_, .events = POLLIN, .revents = 0};
    const int ready = poll(&readable, 1, static_cast<int>(timeout.count()));
    if (ready <= 0) {
        return timeout.count() > 0;
    }
    std::array<char, 4096> buffer{};
    const ssize_t length = read(pipe_, buffer.data(), buffer.size());
    if (length > 0) {
        output_.append(buffer.data(), static_cast<std::size_t>(length));
    }
    return length > 0;
}

} // namespace tocca::instruments

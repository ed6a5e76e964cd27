#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace tocca::instruments {

/// A program under test: started, read line by line, ended.
///
/// Threads: one at a time.
/// Lifetime: destruction kills the program and waits for its end.
class Process {
public:
    /// Variables to change in the program's environment; no value takes the variable away.
    using Environment = std::map<std::string, std::optional<std::string>>;

    /// Starts `command`, found as the shell would find it; its standard output and error are read together.
    /// Errors: throws `std::system_error`.
    explicit Process(const std::vector<std::string>& command, const Environment& changes = {});
    ~Process();

    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    /// Waits until `count` lines contain `text`; false when the deadline passes or the output ends before that.
    bool waitForLine(std::string_view text, std::chrono::milliseconds deadline, int count = 1);

    /// How many of the lines read so far contain `text`.
    [[nodiscard]] int countLines(std::string_view text) const;

    /// Everything read so far, for messages.
    [[nodiscard]] const std::string& output() const noexcept { return output_; }

    void signal(int number) const;

    /// Waits for the end and returns the exit status, negative for the number of the signal that ended it; nothing when
    /// the deadline passes.
    std::optional<int> waitForExit(std::chrono::milliseconds deadline);

    [[nodiscard]] bool isRunning();

    [[nodiscard]] pid_t id() const noexcept { return id_; }

private:
    /// Reads what is there, after waiting up to `timeout` for it; false at the end of the output.
    bool readSome(std::chrono::milliseconds timeout);

    pid_t id_ = -1;
    int pipe_ = -1;
    std::string output_;
    std::optional<int> status_;
};

} // namespace tocca::instruments

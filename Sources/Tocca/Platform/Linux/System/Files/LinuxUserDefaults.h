#pragma once

#include "Platform/SerialQueue.h"
#include "Platform/UserDefaults.h"

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace tocca::platform::linux {

/// User defaults in a file: a sorted `key=true` or `key=false` line for everything set since the program started.
///
/// A thread of its own writes the file, in one step. Nothing reads it back.
class LinuxUserDefaults : public UserDefaults {
public:
    /// `tocca/defaults` in the user's state directory.
    explicit LinuxUserDefaults(SerialQueues& queues);

    /// `file`, whose directories are made when needed; nothing is kept without it.
    LinuxUserDefaults(SerialQueues& queues, std::optional<std::filesystem::path> file);

    void setBool(std::string_view key, bool value) override;

private:
    SerialQueues& queues_;
    const std::optional<std::filesystem::path> file_;
    std::map<std::string, bool, std::less<>> values_;
    std::unique_ptr<SerialQueue> writer_; // from the first value on
};

} // namespace tocca::platform::linux

#pragma once

#include "Platform/SerialQueue.h"
#include "Platform/UserDefaults.h"

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace tocca::platform::linux {

/// A file of `key=true` lines, sorted, with everything that was set since the program started.
///
/// It is written by a thread of its own, in one step; nothing ever reads it back.
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

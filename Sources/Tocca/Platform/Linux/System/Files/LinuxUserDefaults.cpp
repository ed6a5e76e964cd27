#include "Platform/Linux/System/Files/LinuxUserDefaults.h"

#include "Platform/Linux/System/Files/FileReplacement.h"
#include "Platform/Linux/System/Files/LinuxDirectories.h"

#include <system_error>
#include <utility>

namespace tocca::platform::linux {

namespace {

std::optional<std::filesystem::path> usualFile()
{
    const auto directory = stateDirectory();
    return directory ? std::optional(*directory / "tocca" / "defaults") : std::nullopt;
}

} // namespace

LinuxUserDefaults::LinuxUserDefaults(SerialQueues& queues)
    : LinuxUserDefaults(queues, usualFile())
{}

LinuxUserDefaults::LinuxUserDefaults(SerialQueues& queues, std::optional<std::filesystem::path> file)
    : queues_(queues)
    , file_(std::move(file))
{}

void LinuxUserDefaults::setBool(std::string_view key, bool value)
{
    values_.insert_or_assign(std::string(key), value);
    if (!file_) {
        return;
    }
    if (!writer_) {
        writer_ = queues_.make({.label = "defaults"});
    }
    std::string text;
    for (const auto& [name, isSet] : values_) {
        text += name + (isSet ? "=true\n" : "=false\n");
    }
    writer_->post([file = *file_, text = std::move(text)] {
        std::error_code error;
        std::filesystem::create_directories(file.parent_path(), error);
        static_cast<void>(replaceFile(file, text)); // a value that cannot be kept is lost
    });
}

} // namespace tocca::platform::linux

#include "Platform/Linux/System/Files/FileError.h"

#include <system_error>

namespace tocca::platform::linux {

Error fileError(const std::filesystem::path& path, const std::string& reason)
{
    const auto name = path.has_filename() ? path.filename() : path;
    return {name.empty() ? reason : name.string() + ": " + reason};
}

Error fileError(const std::filesystem::path& path, int number)
{
    return fileError(path, std::generic_category().message(number));
}

} // namespace tocca::platform::linux

#include "Output/FileError.h"

#include <system_error>

namespace tocca::soundpack {

Error fileError(std::string_view attempt, const std::filesystem::path& path, int code)
{
    std::string text = "cannot " + std::string(attempt) + ' ' + path.string();
    if (code != 0) {
        text += ": " + std::generic_category().message(code);
    }
    return {text};
}

} // namespace tocca::soundpack

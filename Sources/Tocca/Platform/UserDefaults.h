#pragma once

#include <string_view>

namespace tocca::platform {

/// The values that the desktop keeps for this program. Threads: main. Errors: none; a value that cannot be kept is lost.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;
    virtual void setBool(std::string_view key, bool value) = 0;
};

} // namespace tocca::platform

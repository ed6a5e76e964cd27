#pragma once

#include <string>

namespace tocca::platform {

/// The desktop around the program. Threads: main.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Opens `url` with the program the desktop has for it; false when there is none.
    virtual bool openUrl(const std::string& url) = 0;
};

} // namespace tocca::platform

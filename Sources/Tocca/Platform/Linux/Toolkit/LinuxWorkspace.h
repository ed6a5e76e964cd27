#pragma once

#include "Platform/Workspace.h"

namespace tocca::platform::linux {

/// The desktop as xdg-open knows it.
class LinuxWorkspace : public Workspace {
public:
    /// Errors: false for what is no absolute URL and where xdg-open is missing; what xdg-open finds is not waited for.
    bool openUrl(const std::string& url) override;
};

} // namespace tocca::platform::linux

#pragma once

#include "Platform/Desktop/Popovers.h"
#include "Platform/Linux/Qt/Windows/OwnWindows.h"

namespace tocca::platform::linux {

/// Popovers that hang at a `LinuxStatusItem`. Lifetime: outlives its popovers.
class LinuxPopovers : public Popovers {
public:
    explicit LinuxPopovers(OwnWindows& family) noexcept
        : family_(family)
    {}

    [[nodiscard]] std::unique_ptr<Popover> make() override;

private:
    OwnWindows& family_;
};

} // namespace tocca::platform::linux

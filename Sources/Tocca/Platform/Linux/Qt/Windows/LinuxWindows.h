#pragma once

#include "Platform/Desktop/Windows.h"
#include "Platform/Linux/Qt/Windows/OwnWindows.h"

namespace tocca::platform::linux {

/// Ordinary windows, with the desktop's frame around them. Lifetime: outlives its windows.
class LinuxWindows : public Windows {
public:
    explicit LinuxWindows(OwnWindows& family) noexcept
        : family_(family)
    {}

    [[nodiscard]] std::unique_ptr<Window> make(const WindowOptions& options,
                                               std::unique_ptr<View> content) override;

private:
    OwnWindows& family_;
};

} // namespace tocca::platform::linux

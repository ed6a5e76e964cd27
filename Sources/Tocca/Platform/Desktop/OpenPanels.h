#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace tocca::platform {

/// The desktop's dialog for choosing what to open. Threads: main, calls included.
class OpenPanels {
public:
    /// The chosen folder, or nothing when the person cancelled.
    using Completion = std::function<void(std::optional<std::filesystem::path>)>;

    virtual ~OpenPanels() = default;

    /// Asks for one folder; `prompt` labels the button that takes it. A popover stays open meanwhile. A second request while the panel
    /// is open brings it to the front, and its completion is never called.
    virtual void chooseDirectory(const std::string& prompt, Completion completion) = 0;
};

} // namespace tocca::platform

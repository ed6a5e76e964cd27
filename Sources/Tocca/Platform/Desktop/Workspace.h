#pragma once

#include "Support/Subscription.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace tocca::platform {

/// What a program is for, as far as that matters here and the desktop can tell.
enum class ApplicationKind : std::uint8_t { other, passwordStore, call };

/// A program with windows, as the desktop knows it; one of which nothing is known stands for nobody, too.
struct RunningApplication {
    std::optional<std::string>
        bundleIdentifier{}; ///< as in Platform/README.md; none when the program is not known
    std::optional<std::string> localizedName{}; ///< the program's own name, for people
    ApplicationKind kind = ApplicationKind::other;

    bool operator==(const RunningApplication&) const = default;
};

/// The desktop around the program. Threads: main.
class Workspace {
public:
    /// Called with the application that came to the front, which may be nobody; or with nothing when the desktop cannot tell.
    using ActivationHandler = std::function<void(const std::optional<RunningApplication>&)>;

    virtual ~Workspace() = default;

    /// Opens `url` with the program the desktop has for it; false when there is none.
    virtual bool openUrl(const std::string& url) = 0;

    /// The application whose window has the focus, if the desktop can tell.
    [[nodiscard]] virtual std::optional<RunningApplication> frontmostApplication() const = 0;

    /// Calls `handler` whenever another application comes to the front, never before this call has returned.
    [[nodiscard]] virtual Subscription onActivation(ActivationHandler handler) = 0;
};

} // namespace tocca::platform

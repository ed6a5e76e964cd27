#pragma once

#include "Platform/Desktop/Workspace.h"
#include "Platform/Linux/Freedesktop/Applications/DesktopEntries.h"
#include "Platform/Linux/System/SecureInput.h"
#include "Platform/Linux/X11/DesktopWatch.h"
#include "Platform/Timers.h"
#include "Support/Listeners.h"

#include <QSocketNotifier>

#include <memory>
#include <optional>
#include <string>

namespace tocca::platform::linux {

/// The desktop: opens URLs with xdg-open and learns from the X server which application is in front. A Wayland session tells no program.
///
/// It also sets and clears the reason of `SecureInput` for windows of lock screens and password prompts.
class LinuxWorkspace : public Workspace {
public:
    LinuxWorkspace(SecureInput& secureInput, Timers& timers);
    ~LinuxWorkspace() override;

    /// Errors: false for anything but an absolute URL, and where xdg-open is missing. What xdg-open itself achieves is not waited for.
    bool openUrl(const std::string& url) override;

    /// Nothing until the X server's first answer, which the activation handlers hear of.
    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override
    {
        return frontmost_;
    }

    [[nodiscard]] Subscription onActivation(ActivationHandler handler) override;

private:
    void connect();
    void serve();
    void lose();
    void setFront(const std::optional<WindowFacts>& window);

    SecureInput& secureInput_;
    Timers& timers_;
    DesktopEntries entries_;
    std::optional<RunningApplication> frontmost_;
    Listeners<> activations_;
    std::unique_ptr<DesktopWatch> watch_;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::unique_ptr<Timer> retry_;
};

} // namespace tocca::platform::linux

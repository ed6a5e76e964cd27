#pragma once

#include "Platform/Desktop/Workspace.h"
#include "Platform/Linux/Freedesktop/Applications/DesktopEntries.h"
#include "Platform/Linux/Freedesktop/ShellPrompt.h"
#include "Platform/Linux/System/SecureInput.h"
#include "Platform/Linux/X11/DesktopWatch.h"
#include "Platform/Timers.h"
#include "Support/Listeners.h"

#include <QObject>
#include <QSocketNotifier>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace tocca::platform::linux {

/// The desktop: has its file manager show folders, and learns from the X server which application is in front. A Wayland session tells no
/// program.
///
/// It also sets and clears the reasons of `SecureInput` for windows of lock screens and password prompts, and for those of GNOME's shell.
class LinuxWorkspace : public Workspace {
public:
    /// `showSettings` shows what stands between the program and the keyboard.
    LinuxWorkspace(SecureInput& secureInput, Timers& timers, std::function<void()> showSettings);
    ~LinuxWorkspace() override;

    /// Opens folders of this computer, and the address of the system's settings. Where no file manager answers, a notice says where the
    /// folder is.
    /// Errors: false for any other URL.
    bool openUrl(const std::string& url) override;

    /// Nothing until the X server's first answer, which the activation handlers hear of.
    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override
    {
        return frontmost_;
    }

    [[nodiscard]] Subscription onActivation(ActivationHandler handler) override;

private:
    void showFolder(const QUrl& folder);
    void connect();
    void serve();
    void lose();
    void setFront(const std::optional<WindowFacts>& window);

    SecureInput& secureInput_;
    Timers& timers_;
    const std::function<void()> showSettings_;
    QObject replies_; // to calls on the bus
    ShellPrompt shellPrompt_;
    DesktopEntries entries_;
    std::optional<RunningApplication> frontmost_;
    Listeners<> activations_;
    std::unique_ptr<DesktopWatch> watch_;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::unique_ptr<Timer> retry_;
};

} // namespace tocca::platform::linux

#include "Platform/Linux/Qt/LinuxApplication.h"

#include "Platform/Linux/Freedesktop/DesktopNotice.h"
#include "Platform/Linux/Qt/ApplicationIcon.h"
#include "Platform/Linux/Qt/Windows/ContentWindow.h"
#include "Platform/Linux/Qt/Windows/WindowActivation.h"
#include "Platform/Linux/System/ApplicationId.h"
#include "Platform/Linux/X11/StartupNotice.h"

#include <QDBusConnection>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace tocca::platform::linux {

LinuxApplication::LinuxApplication(Surroundings surroundings)
    : surroundings_(std::move(surroundings))
{
    QGuiApplication::setDesktopFileName(QLatin1String(kApplicationId));
    QGuiApplication::setWindowIcon(applicationIcon());
}

std::optional<int> LinuxApplication::statusOfSecondInstance()
{
    using Claim = ApplicationService::Claim;
    if (!claim_) {
        service_ = std::make_unique<ApplicationService>(
            QDBusConnection::sessionBus(), surroundings_.display,
            ApplicationService::Commands{.activate = [this] { reopen(); }, .quit = [this] { terminate(); }});
        claim_ = service_->claim(surroundings_.launch);
        if (*claim_ != Claim::first) {
            completeStartup(surroundings_.launch.toStdString());
        }
        if (*claim_ == Claim::unanswered) {
            surroundings_.output.printLine(
                "Tocca runs already, but does not answer. End that one, then start it again.");
        }
    }
    switch (*claim_) {
    case Claim::told:
        return 0;
    case Claim::unanswered:
        return 1;
    case Claim::first:
        break;
    }
    return std::nullopt;
}

int LinuxApplication::run(ApplicationDelegate& delegate)
{
    if (const auto status = statusOfSecondInstance()) {
        return *status;
    }
    QGuiApplication::setQuitOnLastWindowClosed(delegate.applicationShouldTerminateAfterLastWindowClosed());
    QObject context; // a call that is still waiting when the loop ends is dropped with it
    const auto launched = [this, &delegate] {
        delegate.applicationDidFinishLaunching();
        delegate_ = &delegate;
        if (std::exchange(hasWishToReopen_, false)) {
            reopen();
        }
    };
    QMetaObject::invokeMethod(&context, launched, Qt::QueuedConnection);
    const int status = QCoreApplication::exec();
    delegate_ = nullptr;
    service_.reset(); // from here another instance may take over
    return status;
}

void LinuxApplication::setActivationPolicy(ActivationPolicy policy)
{
    // The desktop needs no telling: its task bar has ordinary windows, and those only while they are shown.
    if (policy == ActivationPolicy::regular || hasSaidWhereItIs_ || surroundings_.hasStatusIcon()) {
        return;
    }
    hasSaidWhereItIs_ = true;
    constexpr const char* kNotice =
        "Tocca keeps running without a window. Start it again to bring the window back.";
    surroundings_.output.printLine(kNotice);
    sendDesktopNotice(QDBusConnection::sessionBus(), QLatin1String(kNotice));
}

void LinuxApplication::activate()
{
    for (ContentWindow* const window : surroundings_.windows.all()) {
        if (window->isVisible() && window->kind() == ContentWindow::Kind::ordinary) {
            bringToFront(*window);
        }
    }
}

void LinuxApplication::terminate()
{
    QCoreApplication::exit(); // `quit` would ask the windows first, and ours refuse to close
}

void LinuxApplication::reopen()
{
    if (delegate_ == nullptr) {
        hasWishToReopen_ = true;
        return;
    }
    const auto& windows = surroundings_.windows.all();
    delegate_->applicationShouldHandleReopen(
        std::any_of(windows.begin(), windows.end(), [](const auto* window) { return window->isVisible(); }));
}

} // namespace tocca::platform::linux

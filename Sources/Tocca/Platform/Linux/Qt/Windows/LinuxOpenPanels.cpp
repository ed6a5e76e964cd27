#include "Platform/Linux/Qt/Windows/LinuxOpenPanels.h"

#include "Platform/Linux/Qt/Windows/ContentWindow.h"
#include "Platform/Linux/Qt/Windows/WindowActivation.h"
#include "Platform/Linux/Qt/XDesktop.h"

#include <QDBusConnection>
#include <QGuiApplication>

#include <utility>

namespace tocca::platform::linux {

namespace {

/// The portal's name for the window that the dialog belongs to.
QString handleOf(const QWindow* window)
{
    return window != nullptr && XDesktop::isPresent()
               ? QStringLiteral("x11:%1").arg(static_cast<qulonglong>(window->winId()), 0, 16)
               : QString();
}

} // namespace

void LinuxOpenPanels::chooseDirectory(const std::string& prompt, Completion completion)
{
    if (dialog_) {
        dialog_->bringToFront();
        return;
    }
    const bool isPortalStuck = portal_ != nullptr && !portal_->isTaken();
    portal_.reset();
    if (const auto givenUp = std::exchange(pending_, std::move(completion))) {
        givenUp(std::nullopt);
    }
    windows_.setDialog(true);
    if (isPortalStuck) {
        showOwnDialog(prompt);
    } else {
        askPortal(prompt);
    }
}

void LinuxOpenPanels::askPortal(const std::string& prompt)
{
    portal_ = std::make_unique<FolderPortal>(
        QDBusConnection::sessionBus(),
        FolderPortal::Observers{.chosen = [this](auto directory) { finish(directory); },
                                .unavailable = [this, prompt] { showOwnDialog(prompt); }});
    portal_->ask(QString::fromStdString(prompt), handleOf(QGuiApplication::focusWindow()));
}

void LinuxOpenPanels::showOwnDialog(const std::string& prompt)
{
    dialog_ =
        FolderDialog::open(QString::fromStdString(prompt), [this](auto directory) { finish(directory); });
    if (!dialog_) {
        finish(std::nullopt);
    }
}

void LinuxOpenPanels::finish(const std::optional<std::filesystem::path>& directory)
{
    // Whichever there is, it is calling.
    if (portal_) {
        portal_.release()->deleteLater();
    }
    if (dialog_) {
        dialog_.release()->deleteLater();
    }
    windows_.setDialog(false);
    if (const auto completion = std::exchange(pending_, nullptr)) {
        completion(directory);
    }
}

} // namespace tocca::platform::linux

#pragma once

#include "Platform/Linux/Qt/Windows/OwnWindows.h"
#include "Platform/Linux/Tray/DBusMenu.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>

class QWindow;

namespace tocca::platform::linux {

/// Offers the main menu to the desktop's global menu bar, if there is one, for every ordinary window.
/// Threads: main. Lifetime: ends before `windows`.
class MenuExport : public QObject {
public:
    /// `changed` is told when the answer of `isShown` changes.
    MenuExport(QDBusConnection bus, OwnWindows& windows, MenuSource menu, std::function<void()> changed);

    [[nodiscard]] bool isShown() const noexcept { return hasRegistrar_; }

protected:
    /// Announces a window whenever it is shown, because only then does it have a number.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setRegistrar(bool hasRegistrar);
    void announce(const QWindow& window);

    QDBusConnection bus_;
    OwnWindows& windows_;
    const std::function<void()> changed_;
    DBusMenu menu_;
    QDBusServiceWatcher watcher_;
    bool hasRegistrar_ = false;
};

} // namespace tocca::platform::linux

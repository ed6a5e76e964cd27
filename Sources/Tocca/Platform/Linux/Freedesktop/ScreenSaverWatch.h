#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>

#include <functional>

namespace tocca::platform::linux {

/// Follows whether a screen saver on the session bus is active; one that does not run is not.
/// Threads: main.
class ScreenSaverWatch : public QObject {
    Q_OBJECT

public:
    /// Where a screen saver is on the bus.
    struct Service {
        const char* name; ///< also its interface's
        const char* path;
    };

    /// Waits for the bus, but never for the service.
    ScreenSaverWatch(QDBusConnection bus, Service service, std::function<void(bool)> report);

private:
    void ask();
    Q_SLOT void activeChanged(bool isActive);

    QDBusConnection bus_;
    const Service service_;
    const std::function<void(bool)> report_;
    QDBusServiceWatcher watcher_;
    unsigned question_ = 0; // the latest; replies to earlier ones are ignored
};

} // namespace tocca::platform::linux

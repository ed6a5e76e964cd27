#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>

#include <functional>

namespace tocca::platform::linux {

/// Follows whether a screen saver of the session bus is active; one that is not running is not.
/// Threads: main.
class ScreenSaverWatch : public QObject {
    Q_OBJECT

public:
    /// What a screen saver is called on the bus.
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
    unsigned question_ = 0; // answers to earlier ones come too late
};

} // namespace tocca::platform::linux

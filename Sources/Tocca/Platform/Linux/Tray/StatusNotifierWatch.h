#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>

#include <functional>

namespace tocca::platform::linux {

/// Makes a status item known to whatever collects them for the desktop's trays, whenever that comes, and follows whether a tray is there.
/// Threads: main.
class StatusNotifierWatch : public QObject {
    Q_OBJECT

public:
    /// `changed` is told when the answer of `hasHost` changes.
    StatusNotifierWatch(QDBusConnection bus, std::function<void()> changed);

    /// Whether somebody shows status items.
    [[nodiscard]] bool hasHost() const noexcept { return hasHost_; }

private:
    void announce();
    Q_SLOT void ask();
    void setHost(bool hasHost);

    QDBusConnection bus_;
    const std::function<void()> changed_;
    QDBusServiceWatcher watcher_;
    bool hasHost_ = false;
    unsigned question_ = 0; // answers to earlier ones come too late
};

} // namespace tocca::platform::linux

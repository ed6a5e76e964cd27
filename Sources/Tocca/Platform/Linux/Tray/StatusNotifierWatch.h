#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>

#include <functional>

namespace tocca::platform::linux {

/// Registers the status item with the desktop's StatusNotifierWatcher whenever that appears, and follows whether a tray shows such items.
/// Threads: main.
class StatusNotifierWatch : public QObject {
    Q_OBJECT

public:
    /// `changed` is called when `hasHost` changes.
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
    unsigned question_ = 0; // the latest; replies to earlier ones are ignored
};

} // namespace tocca::platform::linux

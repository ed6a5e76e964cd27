#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <functional>

namespace tocca::platform::linux {

/// Follows whether the system's login manager says that this session is locked.
///
/// It believes the session's `LockedHint`, which lock screens set and clear. The `Lock` signal is only a request: if no lock screen
/// follows it, nothing would ever tell that the session is unlocked.
/// Threads: main.
class LoginSessionWatch : public QObject {
    Q_OBJECT

public:
    /// Waits for the bus, but never for the service.
    LoginSessionWatch(QDBusConnection bus, std::function<void(bool)> report);

private:
    void follow(const QString& session);
    Q_SLOT void propertiesChanged(const QString& interface, const QVariantMap& changed,
                                  const QStringList& invalidated);

    QDBusConnection bus_;
    const std::function<void(bool)> report_;
    bool hasHeard_ = false; // of a change, which is newer than the reply to the first question
};

} // namespace tocca::platform::linux

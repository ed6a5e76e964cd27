#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

#include <functional>

namespace tocca::platform::linux {

/// Follows whether the person has asked the desktop for less motion, as the settings portal tells; without a portal nobody has.
///
/// Threads: main. Lifetime: `changed` is called while it lives, first when the portal has answered.
class MotionPreference : public QObject {
    Q_OBJECT

public:
    MotionPreference(const QDBusConnection& bus, std::function<void(bool reducesMotion)> changed);

private:
    Q_SLOT void settingChanged(const QString& space, const QString& key, const QDBusVariant& value);
    void take(QVariant value);

    const std::function<void(bool)> changed_;
};

} // namespace tocca::platform::linux

#include "Platform/Linux/Freedesktop/MotionPreference.h"

#include "Platform/Linux/Freedesktop/DBusReply.h"

#include <QDBusMessage>

#include <utility>

namespace tocca::platform::linux {

namespace {

const auto kPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const auto kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto kSettings = QStringLiteral("org.freedesktop.portal.Settings");
const auto kSpace = QStringLiteral("org.gnome.desktop.interface"); // other desktops answer for it as well
const auto kKey = QStringLiteral("enable-animations");

} // namespace

MotionPreference::MotionPreference(const QDBusConnection& bus, std::function<void(bool)> changed)
    : changed_(std::move(changed))
{
    if (!bus.isConnected()) {
        return;
    }
    QDBusConnection(bus).connect(kPortal, kPath, kSettings, QStringLiteral("SettingChanged"), this,
                                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    auto call = QDBusMessage::createMethodCall(kPortal, kPath, kSettings, QStringLiteral("Read"));
    call << kSpace << kKey;
    whenAnswered<QDBusVariant>(bus.asyncCall(call), *this, [this](const auto& reply) {
        if (reply.isValid()) {
            take(reply.value().variant());
        }
    });
}

void MotionPreference::settingChanged(const QString& space, const QString& key, const QDBusVariant& value)
{
    if (space == kSpace && key == kKey) {
        take(value.variant());
    }
}

void MotionPreference::take(QVariant value)
{
    // Older portals wrap the value twice.
    while (value.canConvert<QDBusVariant>() && value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    if (value.metaType() == QMetaType::fromType<bool>()) {
        changed_(!value.toBool());
    }
}

} // namespace tocca::platform::linux

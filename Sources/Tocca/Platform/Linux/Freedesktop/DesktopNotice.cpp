#include "Platform/Linux/Freedesktop/DesktopNotice.h"

#include "Platform/Linux/System/ApplicationId.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QStringList>
#include <QVariantMap>

namespace tocca::platform::linux {

void sendDesktopNotice(const QDBusConnection& bus, const QString& text)
{
    if (!bus.isConnected()) {
        return;
    }
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    constexpr uint kNew = 0;
    constexpr int kUsualTime = -1;
    const QVariantMap hints{{QStringLiteral("desktop-entry"), QLatin1String(kApplicationId)}};
    call << QStringLiteral("Tocca") << kNew << QLatin1String(kApplicationId) << QStringLiteral("Tocca")
         << text << QStringList() << hints << kUsualTime;
    bus.asyncCall(call);
}

} // namespace tocca::platform::linux

#include "Platform/Linux/Freedesktop/LoginSessionWatch.h"

#include "Platform/Linux/Freedesktop/DBusReply.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <utility>

namespace tocca::platform::linux {

namespace {

const auto kService = QStringLiteral("org.freedesktop.login1");
const auto kProperties = QStringLiteral("org.freedesktop.DBus.Properties");
const auto kSession = QStringLiteral("org.freedesktop.login1.Session");
const auto kLockedHint = QStringLiteral("LockedHint");

} // namespace

LoginSessionWatch::LoginSessionWatch(QDBusConnection bus, std::function<void(bool)> report)
    : bus_(std::move(bus))
    , report_(std::move(report))
{
    auto call = QDBusMessage::createMethodCall(kService, QStringLiteral("/org/freedesktop/login1"),
                                               QStringLiteral("org.freedesktop.login1.Manager"),
                                               QStringLiteral("GetSession"));
    call.setAutoStartService(false);
    // "auto" is the session that this program belongs to, or, for a service of the user, the one on the user's screen.
    call << QStringLiteral("auto");
    whenAnswered<QDBusObjectPath>(bus_.asyncCall(call), *this, [this](const auto& reply) {
        if (reply.isValid()) {
            follow(reply.value().path());
        }
    });
}

void LoginSessionWatch::follow(const QString& session)
{
    bus_.connect(kService, session, kProperties, QStringLiteral("PropertiesChanged"), this,
                 SLOT(propertiesChanged(QString, QVariantMap, QStringList)));
    auto call = QDBusMessage::createMethodCall(kService, session, kProperties, QStringLiteral("Get"));
    call << kSession << kLockedHint;
    whenAnswered<QDBusVariant>(bus_.asyncCall(call), *this, [this](const auto& reply) {
        if (reply.isValid() && !hasHeard_) {
            report_(reply.value().variant().toBool());
        }
    });
}

void LoginSessionWatch::propertiesChanged(const QString& interface, const QVariantMap& changed,
                                          const QStringList& /*invalidated*/)
{
    if (const auto hint = changed.constFind(kLockedHint); interface == kSession && hint != changed.cend()) {
        hasHeard_ = true;
        report_(hint->toBool());
    }
}

} // namespace tocca::platform::linux

#include "Platform/Linux/Tray/StatusNotifierWatch.h"

#include "Platform/Linux/Freedesktop/DBusReply.h"

#include <QDBusMessage>
#include <QDBusVariant>

#include <utility>

namespace tocca::platform::linux {

namespace {

const auto kService = QStringLiteral("org.kde.StatusNotifierWatcher"); // also its interface's name
const auto kPath = QStringLiteral("/StatusNotifierWatcher");

} // namespace

StatusNotifierWatch::StatusNotifierWatch(QDBusConnection bus, std::function<void()> changed)
    : bus_(std::move(bus))
    , changed_(std::move(changed))
    , watcher_(kService, bus_, QDBusServiceWatcher::WatchForOwnerChange)
{
    QObject::connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this, [this] { announce(); });
    QObject::connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        ++question_;
        setHost(false);
    });
    for (const char* const signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        bus_.connect(kService, kPath, kService, QLatin1String(signal), this, SLOT(ask()));
    }
    announce();
}

void StatusNotifierWatch::announce()
{
    // Also before there is a tray: one that comes later finds the item in the watcher's list.
    auto call = QDBusMessage::createMethodCall(kService, kPath, kService,
                                               QStringLiteral("RegisterStatusNotifierItem"));
    call.setAutoStartService(false);
    bus_.asyncCall(call << bus_.baseService());
    ask();
}

void StatusNotifierWatch::ask()
{
    auto call = QDBusMessage::createMethodCall(
        kService, kPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call.setAutoStartService(false);
    call << kService << QStringLiteral("IsStatusNotifierHostRegistered");
    whenAnswered<QDBusVariant>(bus_.asyncCall(call), *this,
                               [this, question = ++question_](const auto& reply) {
                                   if (question == question_) {
                                       setHost(reply.isValid() && reply.value().variant().toBool());
                                   }
                               });
}

void StatusNotifierWatch::setHost(bool hasHost)
{
    if (std::exchange(hasHost_, hasHost) != hasHost) {
        changed_();
    }
}

} // namespace tocca::platform::linux

#include "Platform/Linux/Freedesktop/ScreenSaverWatch.h"

#include "Platform/Linux/Freedesktop/DBusReply.h"

#include <QDBusMessage>

#include <utility>

namespace tocca::platform::linux {

ScreenSaverWatch::ScreenSaverWatch(QDBusConnection bus, Service service, std::function<void(bool)> report)
    : bus_(std::move(bus))
    , service_(service)
    , report_(std::move(report))
    , watcher_(QLatin1String(service.name), bus_, QDBusServiceWatcher::WatchForOwnerChange)
{
    QObject::connect(&watcher_, &QDBusServiceWatcher::serviceOwnerChanged, this, [this] {
        // A screen saver that is gone locks nothing any more; a new one may have locked before it took the name.
        activeChanged(false);
        ask();
    });
    // From any path: some send the signal from another one than the one that answers questions.
    bus_.connect(QLatin1String(service.name), QString(), QLatin1String(service.name),
                 QStringLiteral("ActiveChanged"), this, SLOT(activeChanged(bool)));
    ask();
}

void ScreenSaverWatch::ask()
{
    auto call = QDBusMessage::createMethodCall(QLatin1String(service_.name), QLatin1String(service_.path),
                                               QLatin1String(service_.name), QStringLiteral("GetActive"));
    call.setAutoStartService(false);
    whenAnswered<bool>(bus_.asyncCall(call), *this, [this, question = ++question_](const auto& reply) {
        if (question == question_ && reply.isValid()) {
            report_(reply.value());
        }
    });
}

void ScreenSaverWatch::activeChanged(bool isActive)
{
    ++question_;
    report_(isActive);
}

} // namespace tocca::platform::linux

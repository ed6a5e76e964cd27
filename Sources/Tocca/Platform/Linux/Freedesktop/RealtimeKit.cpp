#include "Platform/Linux/Freedesktop/RealtimeKit.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace tocca::platform::linux {

void raiseThreadThroughRealtimeKit(std::uint64_t threadId)
{
    constexpr int kRaisedNice = -11;
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.RealtimeKit1"), QStringLiteral("/org/freedesktop/RealtimeKit1"),
        QStringLiteral("org.freedesktop.RealtimeKit1"), QStringLiteral("MakeThreadHighPriority"));
    call << QVariant::fromValue<qulonglong>(threadId) << QVariant::fromValue<int>(kRaisedNice);
    QDBusConnection::systemBus().send(call);
}

} // namespace tocca::platform::linux

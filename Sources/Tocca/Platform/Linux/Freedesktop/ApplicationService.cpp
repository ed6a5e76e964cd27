#include "Platform/Linux/Freedesktop/ApplicationService.h"

#include "Platform/Linux/System/ApplicationId.h"
#include "Platform/Linux/X11/StartupNotice.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <utility>

namespace tocca::platform::linux {

namespace {

const QLatin1String kName(kApplicationId);
const auto kPath = QStringLiteral("/org/tocca/Tocca");
const auto kInterface = QStringLiteral("org.freedesktop.Application");
const auto kToken =
    QStringLiteral("activation-token"); // with which a desktop allows a window to come to the front

} // namespace

ApplicationService::ApplicationService(QDBusConnection bus, const std::string& display, Commands commands)
    : bus_(std::move(bus))
    , name_(kName + QStringLiteral(".on_") + QString::fromStdString(display))
    , commands_(std::move(commands))
{}

ApplicationService::~ApplicationService()
{
    bus_.unregisterObject(kPath);
    bus_.unregisterService(kName);
    bus_.unregisterService(name_);
}

ApplicationService::Claim ApplicationService::claim(const QByteArray& launch)
{
    if (!bus_.isConnected()) {
        return Claim::first;
    }
    bus_.registerObject(kPath, this, QDBusConnection::ExportAllSlots); // before anybody can find the name
    using Bus = QDBusConnectionInterface;
    const auto answer =
        bus_.interface()->registerService(name_, Bus::DontQueueService, Bus::DontAllowReplacement);
    if (!answer.isValid() || answer.value() == Bus::ServiceRegistered) {
        // Launchers know this one.
        bus_.interface()->registerService(kName, Bus::QueueService, Bus::DontAllowReplacement);
        return Claim::first;
    }
    constexpr int kDeadline = 5000; // milliseconds
    auto call = QDBusMessage::createMethodCall(name_, kPath, kInterface, QStringLiteral("Activate"));
    QVariantMap platformData;
    if (!launch.isEmpty()) {
        platformData.insert(kToken, QString::fromUtf8(launch));
    }
    const QDBusMessage reply = bus_.call(call << platformData, QDBus::Block, kDeadline);
    return reply.type() == QDBusMessage::ReplyMessage ? Claim::told : Claim::unanswered;
}

void ApplicationService::Activate(const QVariantMap& platformData)
{
    adopt(platformData);
    commands_.activate();
}

void ApplicationService::Open(const QStringList& /*uris*/, const QVariantMap& platformData)
{
    Activate(platformData);
}

void ApplicationService::ActivateAction(const QString& name, const QVariantList& /*parameters*/,
                                        const QVariantMap& platformData)
{
    if (name == QLatin1String("quit")) {
        commands_.quit();
    } else {
        Activate(platformData);
    }
}

void ApplicationService::adopt(const QVariantMap& platformData)
{
    QByteArray token = platformData.value(kToken).toString().toUtf8();
    if (token.isEmpty()) {
        token = platformData.value(QStringLiteral("desktop-startup-id")).toString().toUtf8();
    }
    if (!token.isEmpty()) {
        qputenv("XDG_ACTIVATION_TOKEN", token); // where Qt looks for it
        completeStartup(token.toStdString());
    }
}

} // namespace tocca::platform::linux

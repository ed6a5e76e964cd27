#include "Platform/Linux/Freedesktop/ApplicationService.h"

#include "Platform/Linux/System/ApplicationId.h"

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

ApplicationService::ApplicationService(QDBusConnection bus, Commands commands)
    : bus_(std::move(bus))
    , commands_(std::move(commands))
{}

ApplicationService::~ApplicationService()
{
    bus_.unregisterObject(kPath);
    bus_.unregisterService(kName);
}

bool ApplicationService::claim()
{
    if (!bus_.isConnected()) {
        return true;
    }
    bus_.registerObject(kPath, this, QDBusConnection::ExportAllSlots); // before anybody can find the name
    const auto answer = bus_.interface()->registerService(kName, QDBusConnectionInterface::DontQueueService,
                                                          QDBusConnectionInterface::DontAllowReplacement);
    if (!answer.isValid() || answer.value() == QDBusConnectionInterface::ServiceRegistered) {
        return true;
    }
    constexpr int kDeadline = 5000; // milliseconds
    auto call = QDBusMessage::createMethodCall(kName, kPath, kInterface, QStringLiteral("Activate"));
    QVariantMap platformData;
    for (const char* const variable : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
        if (const QByteArray token = qgetenv(variable); !token.isEmpty()) {
            platformData.insert(kToken, QString::fromUtf8(token));
            break;
        }
    }
    bus_.call(call << platformData, QDBus::Block, kDeadline);
    return false;
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
    if (const QString token = platformData.value(kToken).toString(); !token.isEmpty()) {
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8()); // where Qt looks for it
    }
}

} // namespace tocca::platform::linux

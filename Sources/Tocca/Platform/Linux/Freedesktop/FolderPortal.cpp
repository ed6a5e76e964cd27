#include "Platform/Linux/Freedesktop/FolderPortal.h"

#include "Platform/Linux/Freedesktop/DBusReply.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QStringList>
#include <QUrl>

#include <utility>

namespace tocca::platform::linux {

namespace {

const auto kService = QStringLiteral("org.freedesktop.portal.Desktop");
const auto kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto kRequest = QStringLiteral("org.freedesktop.portal.Request");

} // namespace

FolderPortal::FolderPortal(QDBusConnection bus, Observers observers)
    : bus_(std::move(bus))
    , observers_(std::move(observers))
{}

void FolderPortal::ask(const QString& prompt, const QString& parent)
{
    if (!bus_.isConnected()) {
        QMetaObject::invokeMethod(this, observers_.unavailable, Qt::QueuedConnection);
        return;
    }
    // The response may come before the reply that tells where it comes from, so that place is worked out here.
    static int count = 0;
    const QString token = QStringLiteral("tocca%1").arg(++count);
    QString sender = bus_.baseService().mid(1);
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    const QString handle = QStringLiteral("%1/request/%2/%3").arg(kPath, sender, token);
    bus_.connect(kService, handle, kRequest, QStringLiteral("Response"), this,
                 SLOT(answered(uint, QVariantMap)));
    auto call = QDBusMessage::createMethodCall(
        kService, kPath, QStringLiteral("org.freedesktop.portal.FileChooser"), QStringLiteral("OpenFile"));
    const QVariantMap options{{QStringLiteral("handle_token"), token},
                              {QStringLiteral("accept_label"), prompt},
                              {QStringLiteral("directory"), true},
                              {QStringLiteral("modal"), true}};
    whenAnswered(bus_.asyncCall(call << parent << prompt << options), *this, [this](const auto& reply) {
        if (reply.isError()) {
            observers_.unavailable();
        }
    });
}

void FolderPortal::answered(uint response, const QVariantMap& results)
{
    constexpr uint kChosen = 0;
    const QStringList uris = results.value(QStringLiteral("uris")).toStringList();
    const QString path = uris.isEmpty() ? QString() : QUrl(uris.first()).toLocalFile();
    if (response != kChosen || path.isEmpty()) {
        observers_.chosen(std::nullopt);
        return;
    }
    observers_.chosen(std::filesystem::path(path.toStdString()));
}

} // namespace tocca::platform::linux

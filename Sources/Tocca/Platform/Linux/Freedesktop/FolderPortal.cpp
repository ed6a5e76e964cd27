#include "Platform/Linux/Freedesktop/FolderPortal.h"

#include "Platform/Linux/Freedesktop/DBusReply.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
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

FolderPortal::~FolderPortal()
{
    if (isTaken_ && observers_.chosen) { // takes the dialog away
        bus_.send(QDBusMessage::createMethodCall(kService, handle_, kRequest, QStringLiteral("Close")));
    }
}

void FolderPortal::ask(const QString& prompt, const QString& parent)
{
    if (!bus_.isConnected()) {
        QMetaObject::invokeMethod(
            this, [this] { fail(); }, Qt::QueuedConnection);
        return;
    }
    // The response may come before the reply that tells where it comes from, so that place is worked out here.
    static int count = 0;
    const QString token = QStringLiteral("tocca%1").arg(++count);
    QString sender = bus_.baseService().mid(1);
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    handle_ = QStringLiteral("%1/request/%2/%3").arg(kPath, sender, token);
    auto* const owner =
        new QDBusServiceWatcher(kService, bus_, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(owner, &QDBusServiceWatcher::serviceUnregistered, this, [this] { fail(); });
    bus_.connect(kService, handle_, kRequest, QStringLiteral("Response"), this,
                 SLOT(answered(uint, QVariantMap)));
    auto call = QDBusMessage::createMethodCall(
        kService, kPath, QStringLiteral("org.freedesktop.portal.FileChooser"), QStringLiteral("OpenFile"));
    const QVariantMap options{{QStringLiteral("handle_token"), token},
                              {QStringLiteral("accept_label"), prompt},
                              {QStringLiteral("directory"), true},
                              {QStringLiteral("modal"), true}};
    whenAnswered(bus_.asyncCall(call << parent << prompt << options), *this, [this](const auto& reply) {
        isTaken_ = !reply.isError();
        if (!isTaken_) {
            fail();
        }
    });
}

void FolderPortal::answered(uint response, const QVariantMap& results)
{
    constexpr uint kChosen = 0;
    const QStringList uris = results.value(QStringLiteral("uris")).toStringList();
    const QString path = uris.isEmpty() ? QString() : QUrl(uris.first()).toLocalFile();
    const auto chosen = std::exchange(observers_, {}).chosen;
    if (!chosen) {
        return;
    }
    if (response != kChosen || path.isEmpty()) {
        chosen(std::nullopt);
        return;
    }
    chosen(std::filesystem::path(path.toStdString()));
}

void FolderPortal::fail()
{
    if (const auto unavailable = std::exchange(observers_, {}).unavailable) {
        unavailable();
    }
}

} // namespace tocca::platform::linux

#include "Platform/Linux/Tray/StatusNotifierItem.h"

#include <utility>

namespace tocca::platform::linux {

namespace {

const auto kPath = QStringLiteral("/StatusNotifierItem"); // the only one that every desktop looks at

} // namespace

StatusNotifierItem::StatusNotifierItem(QDBusConnection bus, QString menuPath, Observers observers)
    : bus_(std::move(bus))
    , menu_(std::move(menuPath))
    , observers_(std::move(observers))
{
    registerStatusNotifierTypes();
    bus_.registerObject(kPath, this,
                        QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals |
                            QDBusConnection::ExportAllProperties);
}

StatusNotifierItem::~StatusNotifierItem()
{
    bus_.unregisterObject(kPath);
}

void StatusNotifierItem::setIcon(const QString& name, const StatusPixmaps& pixmaps)
{
    iconName_ = name;
    pixmaps_ = pixmaps;
    Q_EMIT NewIcon();
}

void StatusNotifierItem::Activate(int x, int y)
{
    observers_.activated({x, y});
}

void StatusNotifierItem::SecondaryActivate(int x, int y)
{
    observers_.activated({x, y});
}

void StatusNotifierItem::ContextMenu(int x, int y)
{
    observers_.menuRequested({x, y});
}

void StatusNotifierItem::ProvideXdgActivationToken(const QString& token)
{
    // Qt uses the token when it next activates a window.
    qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}

} // namespace tocca::platform::linux

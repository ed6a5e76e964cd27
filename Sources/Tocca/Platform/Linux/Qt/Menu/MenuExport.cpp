#include "Platform/Linux/Qt/Menu/MenuExport.h"

#include "Platform/Linux/Freedesktop/DBusReply.h"
#include "Platform/Linux/Qt/Windows/ContentWindow.h"
#include "Platform/Linux/Qt/XDesktop.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QEvent>

#include <utility>

namespace tocca::platform::linux {

namespace {

const auto kRegistrar = QStringLiteral("com.canonical.AppMenu.Registrar");
const auto kRegistrarPath = QStringLiteral("/com/canonical/AppMenu/Registrar");
const auto kMenuPath = QStringLiteral("/MainMenu");

} // namespace

MenuExport::MenuExport(QDBusConnection bus, OwnWindows& windows, MenuSource menu,
                       std::function<void()> changed)
    : bus_(std::move(bus))
    , windows_(windows)
    , changed_(std::move(changed))
    , menu_(bus_, kMenuPath, std::move(menu))
    , watcher_(kRegistrar, bus_, QDBusServiceWatcher::WatchForOwnerChange)
{
    for (ContentWindow* const window : windows_.all()) {
        window->installEventFilter(this);
    }
    windows_.setMadeObserver([this](ContentWindow& window) { window.installEventFilter(this); });
    connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this, [this] { setRegistrar(true); });
    connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this, [this] { setRegistrar(false); });
    whenAnswered<bool>(bus_.interface()->asyncCall(QStringLiteral("NameHasOwner"), kRegistrar), *this,
                       [this](const auto& reply) {
                           if (reply.isValid() && reply.value()) {
                               setRegistrar(true);
                           }
                       });
}

bool MenuExport::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && hasRegistrar_) {
        announce(*static_cast<QWindow*>(watched));
    }
    return false;
}

void MenuExport::setRegistrar(bool hasRegistrar)
{
    if (!XDesktop::isPresent() || std::exchange(hasRegistrar_, hasRegistrar) == hasRegistrar) {
        return;
    }
    if (hasRegistrar_) {
        for (const ContentWindow* const window : windows_.all()) {
            if (window->isVisible()) {
                announce(*window);
            }
        }
    }
    changed_();
}

void MenuExport::announce(const QWindow& window)
{
    auto call = QDBusMessage::createMethodCall(kRegistrar, kRegistrarPath, kRegistrar,
                                               QStringLiteral("RegisterWindow"));
    call << static_cast<uint>(window.winId()) << QVariant::fromValue(QDBusObjectPath(kMenuPath));
    bus_.asyncCall(call);
}

} // namespace tocca::platform::linux

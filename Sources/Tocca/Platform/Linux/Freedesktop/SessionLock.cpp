#include "Platform/Linux/Freedesktop/SessionLock.h"

#include "Platform/Linux/Freedesktop/LoginSessionWatch.h"
#include "Platform/Linux/Freedesktop/ScreenSaverWatch.h"

#include <QDBusConnection>

#include <array>

namespace tocca::platform::linux {

namespace {

constexpr std::array kScreenSavers{
    ScreenSaverWatch::Service{"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver"}, // KDE, LXQt
    ScreenSaverWatch::Service{"org.gnome.ScreenSaver", "/org/gnome/ScreenSaver"},
    ScreenSaverWatch::Service{"org.cinnamon.ScreenSaver", "/org/cinnamon/ScreenSaver"},
    ScreenSaverWatch::Service{"org.mate.ScreenSaver", "/org/mate/ScreenSaver"},
    ScreenSaverWatch::Service{"org.xfce.ScreenSaver", "/org/xfce/ScreenSaver"},
};

static_assert(SecureInput::kFirstScreenSaver + kScreenSavers.size() <= SecureInput::kReasons);

} // namespace

SessionLock::SessionLock(SecureInput& secureInput)
{
    if (const auto system = QDBusConnection::systemBus(); system.isConnected()) {
        watches_.push_back(std::make_unique<LoginSessionWatch>(
            system, [&secureInput](bool isLocked) { secureInput.set(SecureInput::kSessionLock, isLocked); }));
    }
    const auto session = QDBusConnection::sessionBus();
    if (!session.isConnected()) {
        return;
    }
    unsigned reason = SecureInput::kFirstScreenSaver;
    for (const auto& service : kScreenSavers) {
        watches_.push_back(std::make_unique<ScreenSaverWatch>(
            session, service, [&secureInput, reason](bool isActive) { secureInput.set(reason, isActive); }));
        ++reason;
    }
}

} // namespace tocca::platform::linux

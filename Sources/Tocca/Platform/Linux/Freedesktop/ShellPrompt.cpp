#include "Platform/Linux/Freedesktop/ShellPrompt.h"

#include "Platform/Linux/Freedesktop/DBusReply.h"

#include <QDBusMessage>
#include <QDBusVariant>

#include <utility>

namespace tocca::platform::linux {

namespace {

constexpr double kPoll = 0.25; // seconds
const auto kShell = QStringLiteral("org.gnome.Shell");

} // namespace

ShellPrompt::ShellPrompt(QDBusConnection bus, Timers& timers, std::function<void(bool)> report)
    : bus_(std::move(bus))
    , timers_(timers)
    , report_(std::move(report))
{}

void ShellPrompt::setFocused(bool isFocused)
{
    isFocused_ = isFocused;
    again_.reset();
    answer(isFocused); // until the shell says better
    if (isFocused) {
        ask();
        again_ = timers_.scheduleRepeating(kPoll, [this] { ask(); });
    }
}

void ShellPrompt::ask()
{
    auto call = QDBusMessage::createMethodCall(kShell, QStringLiteral("/org/gnome/Shell"),
                                               QStringLiteral("org.freedesktop.DBus.Properties"),
                                               QStringLiteral("Get"));
    call.setAutoStartService(false);
    call << kShell << QStringLiteral("OverviewActive");
    whenAnswered<QDBusVariant>(bus_.asyncCall(call), *this, [this](const auto& reply) {
        const bool isOverview = reply.isValid() && reply.value().variant().toBool();
        answer(isFocused_ && !isOverview);
    });
}

void ShellPrompt::answer(bool isPrompting)
{
    if (std::exchange(isPrompting_, isPrompting) != isPrompting) {
        report_(isPrompting);
    }
}

} // namespace tocca::platform::linux

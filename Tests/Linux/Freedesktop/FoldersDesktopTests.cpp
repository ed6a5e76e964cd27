#include "Platform/Linux/Freedesktop/LinuxWorkspace.h"
#include "Platform/Linux/System/Threads/LinuxTimers.h"

#include "Linux/Qt/DesktopMachine.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>

namespace tocca::platform::linux {

namespace {

/// A file manager, or what shows notices.
class Desktop : public QDBusVirtualObject {
public:
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        calls.append(message.member());
        for (const QVariant& argument : message.arguments()) {
            texts += argument.toStringList();
        }
        connection.send(message.createReply());
        return true;
    }

    QStringList calls;
    QStringList texts;
};

TEST(FoldersDesktop, AreShownByTheFileManagerOrElseNamed)
{
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("folders"));
    Desktop desktop;
    ASSERT_TRUE(
        bus.registerVirtualObject(QStringLiteral("/org/freedesktop"), &desktop, QDBusConnection::SubPath));
    ASSERT_TRUE(bus.registerService(QStringLiteral("org.freedesktop.Notifications")));

    LinuxTimers timers;
    SecureInput secureInput;
    int settings = 0;
    LinuxWorkspace workspace(secureInput, timers, [&settings] { ++settings; });
    EXPECT_TRUE(workspace.openUrl("file:///home/me/My%20Packs"));
    EXPECT_TRUE(runUntil([&] { return desktop.calls.contains(QStringLiteral("Notify")); }));
    EXPECT_TRUE(
        desktop.texts.contains(QStringLiteral("No file manager answers. The folder is /home/me/My Packs")));

    ASSERT_TRUE(bus.registerService(QStringLiteral("org.freedesktop.FileManager1")));
    EXPECT_TRUE(workspace.openUrl("file:///home/me/My%20Packs"));
    EXPECT_TRUE(runUntil([&] { return desktop.calls.contains(QStringLiteral("ShowFolders")); }));
    EXPECT_TRUE(desktop.texts.contains(QStringLiteral("file:///home/me/My%20Packs")));

    for (const char* const url : {"", "--help", "https://example.org/", "/home/me"}) {
        EXPECT_FALSE(workspace.openUrl(url)) << url;
    }
    EXPECT_EQ(settings, 0);
    EXPECT_TRUE(workspace.openUrl("x-apple.systempreferences:com.example?Privacy"));
    EXPECT_EQ(settings, 1);
    QDBusConnection::disconnectFromBus(QStringLiteral("folders"));
}

} // namespace

} // namespace tocca::platform::linux

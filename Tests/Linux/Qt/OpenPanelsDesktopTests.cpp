#include "Platform/Linux/Qt/Windows/LinuxOpenPanels.h"

#include "Linux/Qt/DesktopMachine.h"

#include <gtest/gtest.h>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QStringList>
#include <QVariantMap>

#include <filesystem>
#include <optional>

namespace tocca::platform::linux {

namespace {

/// A desktop portal whose person has made up his mind.
class Portal : public QDBusVirtualObject {
public:
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        options = qdbus_cast<QVariantMap>(message.arguments().value(2));
        QString sender = message.service().mid(1);
        ++requests;
        if (isStuck) {
            return true; // it never answers
        }
        sender.replace(QLatin1Char('.'), QLatin1Char('_'));
        const QString handle = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2")
                                   .arg(sender, options[QStringLiteral("handle_token")].toString());
        if (isUndecided) {
            connection.send(message.createReply(QVariant::fromValue(QDBusObjectPath(handle))));
            return true;
        }
        // The answer before the reply, as a portal may.
        connection.send(
            QDBusMessage::createSignal(handle, QStringLiteral("org.freedesktop.portal.Request"),
                                       QStringLiteral("Response"))
            << response
            << QVariantMap{{QStringLiteral("uris"), QStringList{QStringLiteral("file:///tmp/My%20packs")}}});
        connection.send(message.createReply(QVariant::fromValue(QDBusObjectPath(handle))));
        return true;
    }

    uint response = 0;
    bool isStuck = false;
    bool isUndecided = false;
    int requests = 0;
    QVariantMap options;
};

class OpenPanelsDesktop : public ::testing::Test {
protected:
    std::optional<std::filesystem::path> choose()
    {
        std::optional<std::filesystem::path> chosen;
        bool isAnswered = false;
        panels_.chooseDirectory("Import", [&](const auto& directory) {
            chosen = directory;
            isAnswered = true;
        });
        EXPECT_TRUE(windows_.hasDialog());
        EXPECT_TRUE(runUntil([&] {
            whileWaiting_();
            return isAnswered;
        }));
        EXPECT_FALSE(windows_.hasDialog());
        return chosen;
    }

    void pressEscapeOnceThereIsADialog()
    {
        whileWaiting_ = [this] {
            const QWindow* const focus = QGuiApplication::focusWindow();
            if (!hasPressed_ && focus != nullptr && focus->isExposed()) {
                hasPressed_ = true;
                outputOf({"xdotool", "key", "Escape"});
            }
        };
    }

    bool hasPressed_ = false;
    std::function<void()> whileWaiting_ = [] {};
    OwnWindows windows_;
    LinuxOpenPanels panels_{windows_};
};

TEST_F(OpenPanelsDesktop, AsksTheDesktopsPortal)
{
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal"));
    Portal portal;
    ASSERT_TRUE(bus.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal));
    ASSERT_TRUE(bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    EXPECT_EQ(choose(), std::filesystem::path("/tmp/My packs"));
    EXPECT_TRUE(portal.options[QStringLiteral("directory")].toBool());
    EXPECT_EQ(portal.options[QStringLiteral("accept_label")].toString(), QStringLiteral("Import"));
    portal.response = 1;
    EXPECT_EQ(choose(), std::nullopt) << "cancelled";
    QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
}

TEST_F(OpenPanelsDesktop, OutlivesAPortalThatHangsOrGoesAway)
{
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal"));
    Portal portal;
    ASSERT_TRUE(bus.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal));
    ASSERT_TRUE(bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));

    portal.isStuck = true;
    int given = 0;
    panels_.chooseDirectory("Import", [&](const auto& directory) { given += directory ? 100 : 1; });
    ASSERT_TRUE(runUntil([&] { return portal.requests == 1; }));
    pressEscapeOnceThereIsADialog();
    EXPECT_EQ(choose(), std::nullopt) << "the second time, the dialog is Qt's own";
    EXPECT_EQ(given, 1) << "whoever asked first is told that nothing was chosen";

    portal.isStuck = false;
    portal.isUndecided = true;
    const auto pressEscape = whileWaiting_;
    bool isGone = false;
    whileWaiting_ = [&] {
        if (!isGone && portal.requests > 1) {
            isGone = bus.unregisterService(QStringLiteral("org.freedesktop.portal.Desktop"));
        }
        pressEscape();
    };
    hasPressed_ = false;
    EXPECT_EQ(choose(), std::nullopt);
    EXPECT_TRUE(hasPressed_) << "Qt's dialog takes the place of the one that is gone";
    QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
}

TEST_F(OpenPanelsDesktop, ShowsQtsOwnDialogWithoutAPortal)
{
    pressEscapeOnceThereIsADialog();
    EXPECT_EQ(choose(), std::nullopt);
    EXPECT_TRUE(hasPressed_);
}

} // namespace

} // namespace tocca::platform::linux

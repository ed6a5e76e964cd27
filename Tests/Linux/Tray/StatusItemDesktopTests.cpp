#include "Platform/Linux/Tray/LinuxStatusBar.h"

#include "Linux/Qt/DesktopMachine.h"

#include <gtest/gtest.h>

#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <csignal>
#include <optional>

namespace tocca::platform::linux {

namespace {

const auto kWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");

/// What collects status items on desktops that have one.
class Watcher : public QDBusVirtualObject {
public:
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.member() == QLatin1String("RegisterStatusNotifierItem")) {
            item = message.arguments().value(0).toString();
            connection.send(message.createReply());
            return true;
        }
        if (message.member() == QLatin1String("Get")) {
            connection.send(message.createReply(QVariant::fromValue(QDBusVariant(hasHost))));
            return true;
        }
        return false;
    }

    bool hasHost = false;
    QString item; ///< who registered last
};

class StatusItemDesktop : public ::testing::Test {
protected:
    StatusItemDesktop()
    {
        item_.setIcon({.size = {18, 18}, .shapes = {{{1.5, 1.5, 15, 15}, 3.5, 1.3}}});
        item_.setAction([this] { ++clicks_; });
    }

    int clicks_ = 0;
    int openings_ = 0;
    int quits_ = 0;
    XDesktop desktop_;
    LinuxStatusBar bar_{desktop_, {.openStudio = [this] { ++openings_; }, .quit = [this] { ++quits_; }}};
    LinuxStatusItem item_{bar_};
};

TEST_F(StatusItemDesktop, IsInAnX11TrayWheneverThereIsOne)
{
    EXPECT_FALSE(bar_.isShown());
    for (int round = 1; round <= 2; ++round) {
        SCOPED_TRACE(round);
        instruments::Process tray({"tint2"});
        ASSERT_TRUE(runUntil([&] { return item_.iconPlace().width() > 8 && item_.iconPlace().x() > 0; }));
        EXPECT_TRUE(bar_.isShown());
        const QPoint centre = item_.iconPlace().center();
        outputOf({"xdotool", "mousemove", std::to_string(centre.x()), std::to_string(centre.y())});
        EXPECT_TRUE(runUntil([&] {
            // The tray may still be moving its icons about.
            outputOf({"xdotool", "click", "1"});
            return clicks_ > 0;
        }));
        tray.signal(SIGKILL);
        EXPECT_TRUE(runUntil([&] { return !bar_.isShown(); }));
        clicks_ = 0;
    }
}

TEST_F(StatusItemDesktop, IsShownByAHostOfTheBusThatComesLater)
{
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("watcher"));
    Watcher watcher;
    ASSERT_TRUE(bus.registerVirtualObject(QStringLiteral("/StatusNotifierWatcher"), &watcher));
    ASSERT_TRUE(bus.registerService(kWatcher));
    ASSERT_TRUE(runUntil([&] { return !watcher.item.isEmpty(); }));
    EXPECT_EQ(watcher.item, QDBusConnection::sessionBus().baseService());
    EXPECT_FALSE(bar_.isShown()) << "it is collected, and nobody shows it";
    watcher.hasHost = true;
    bus.send(QDBusMessage::createSignal(QStringLiteral("/StatusNotifierWatcher"), kWatcher,
                                        QStringLiteral("StatusNotifierHostRegistered")));
    EXPECT_TRUE(runUntil([&] { return bar_.isShown(); }));

    const auto ask = [&](const QString& path, const QString& interface, const QString& method,
                         const QVariantList& arguments) {
        auto call = QDBusMessage::createMethodCall(watcher.item, path, interface, method);
        call.setArguments(arguments);
        QDBusPendingCall pending = bus.asyncCall(call);
        EXPECT_TRUE(runUntil([&] { return pending.isFinished(); }));
        EXPECT_FALSE(pending.isError())
            << method.toStdString() << ": " << pending.error().message().toStdString();
        return pending.reply().arguments();
    };
    const auto kItem = QStringLiteral("org.kde.StatusNotifierItem");
    const auto kMenu = QStringLiteral("com.canonical.dbusmenu");
    const auto facts = qdbus_cast<QVariantMap>(ask(QStringLiteral("/StatusNotifierItem"),
                                                   QStringLiteral("org.freedesktop.DBus.Properties"),
                                                   QStringLiteral("GetAll"), {kItem})
                                                   .value(0));
    EXPECT_EQ(facts[QStringLiteral("Status")].toString(), QStringLiteral("Active"));
    EXPECT_FALSE(facts[QStringLiteral("ItemIsMenu")].toBool());
    const auto pixmaps = qdbus_cast<StatusPixmaps>(facts[QStringLiteral("IconPixmap")]);
    ASSERT_EQ(pixmaps.size(), 6);
    EXPECT_EQ(pixmaps.first().bytes.size(), 16 * 16 * 4);
    EXPECT_NE(pixmaps.first().bytes.count('\xEE'), 0) << "something is drawn";

    ask(QStringLiteral("/StatusNotifierItem"), kItem, QStringLiteral("Activate"), {10, 10});
    EXPECT_EQ(clicks_, 1);

    const QString menuPath = qvariant_cast<QDBusObjectPath>(facts[QStringLiteral("Menu")]).path();
    const auto layout = ask(menuPath, kMenu, QStringLiteral("GetLayout"), {0, -1, QStringList()});
    ASSERT_EQ(layout.size(), 2);
    const auto tree = qdbus_cast<DBusMenuTree>(layout[1]);
    ASSERT_EQ(tree.children.size(), 4);
    const auto choose = [&](qsizetype place, const char* label) {
        EXPECT_EQ(tree.children[place].properties[QStringLiteral("label")].toString(), QLatin1String(label));
        ask(menuPath, kMenu, QStringLiteral("Event"),
            {tree.children[place].id, QStringLiteral("clicked"), QVariant::fromValue(QDBusVariant(0)), 0U});
    };
    choose(0, "Show Tocca");
    choose(1, "Open Tocca Studio");
    choose(3, "Quit Tocca");
    EXPECT_TRUE(runUntil([&] { return clicks_ == 2 && openings_ == 1 && quits_ == 1; }));

    bus.unregisterService(kWatcher);
    EXPECT_TRUE(runUntil([&] { return !bar_.isShown(); }));
    QDBusConnection::disconnectFromBus(QStringLiteral("watcher"));
}

} // namespace

} // namespace tocca::platform::linux

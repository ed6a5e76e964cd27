#include "Platform/Linux/Freedesktop/LoginSessionWatch.h"
#include "Platform/Linux/Freedesktop/ScreenSaverWatch.h"
#include "Platform/Linux/Freedesktop/ShellPrompt.h"

#include "Instruments/Process.h"
#include "Linux/Qt/QtMachine.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <chrono>
#include <map>
#include <string>

namespace tocca::platform::linux {

namespace {

constexpr std::chrono::seconds kDeadline{20};
const auto kSessionPath = QStringLiteral("/org/freedesktop/login1/session/_31");

/// Answers each method with what the test has put there.
class Service : public QDBusVirtualObject {
public:
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        const auto answer = answers.find(message.member().toStdString());
        if (answer == answers.end()) {
            return false;
        }
        connection.send(message.createReply(answer->second));
        return true;
    }

    std::map<std::string, QVariant> answers;
};

class SessionLockTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        // The line may still be under way; what follows the address proper is not needed.
        ASSERT_TRUE(bus_.waitForLine(",guid=", kDeadline)) << bus_.output();
        address_ = QString::fromStdString(bus_.output().substr(0, bus_.output().find(',')));
    }

    void TearDown() override
    {
        for (const QString& name : names_) {
            QDBusConnection::disconnectFromBus(name);
        }
    }

    QDBusConnection connect()
    {
        static int count = 0;
        names_.append(QStringLiteral("test-%1").arg(++count));
        return QDBusConnection::connectToBus(address_, names_.back());
    }

    /// A connection that offers `service_` under `name`.
    QDBusConnection offer(const char* name)
    {
        QDBusConnection connection = connect();
        EXPECT_TRUE(
            connection.registerVirtualObject(QStringLiteral("/"), &service_, QDBusConnection::SubPath));
        EXPECT_TRUE(connection.registerService(QLatin1String(name)));
        return connection;
    }

    bool becomes(bool isLocked)
    {
        return machine_.runUntil([&] { return isLocked_ == isLocked; });
    }

    QtMachine machine_;
    instruments::Process bus_{{"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address"}};
    QString address_;
    QStringList names_;
    Service service_;

    void report(bool isLocked)
    {
        isLocked_ = isLocked;
        locks_ += isLocked ? 1 : 0;
    }

    bool isLocked_ = false;
    int locks_ = 0; // how often it was reported
};

TEST_F(SessionLockTest, FollowsAScreenSaverThatComesAndGoes)
{
    constexpr ScreenSaverWatch::Service kSaver{"org.gnome.ScreenSaver", "/org/gnome/ScreenSaver"};
    const auto announce = [](const QDBusConnection& from, bool isActive) {
        auto signal = QDBusMessage::createSignal(QStringLiteral("/org/gnome/ScreenSaver"),
                                                 QStringLiteral("org.gnome.ScreenSaver"),
                                                 QStringLiteral("ActiveChanged"));
        from.send(signal << isActive);
    };
    const ScreenSaverWatch watch(connect(), kSaver, [this](bool isActive) { report(isActive); });

    service_.answers["GetActive"] = true;
    QDBusConnection saver = offer(kSaver.name);
    EXPECT_TRUE(becomes(true)) << "active when it appeared";
    announce(saver, false);
    EXPECT_TRUE(becomes(false));
    announce(saver, true);
    EXPECT_TRUE(becomes(true));
    saver.unregisterService(QLatin1String(kSaver.name));
    EXPECT_TRUE(becomes(false)) << "it is gone, and its lock with it";

    service_.answers["GetActive"] = false;
    QDBusConnection next = offer(kSaver.name);
    const int before = locks_;
    announce(connect(), true); // of somebody who is not the screen saver
    announce(next, false);
    announce(next, true);
    EXPECT_TRUE(becomes(true));
    EXPECT_EQ(locks_, before + 1);
    isLocked_ = false;
    const ScreenSaverWatch late(connect(), kSaver, [this](bool isActive) { isLocked_ = isActive; });
    service_.answers["GetActive"] = true;
    EXPECT_TRUE(becomes(true)) << "found active";
}

TEST_F(SessionLockTest, TakesTheFocusOfTheShellForAPromptUnlessItIsTheOverviews)
{
    ShellPrompt prompt(connect(), machine_.timers(), [this](bool isPrompting) { report(isPrompting); });
    prompt.setFocused(true);
    EXPECT_TRUE(isLocked_) << "nothing is let through before the shell has answered";
    service_.answers["Get"] = QVariant::fromValue(QDBusVariant(true));
    const QDBusConnection shell = offer("org.gnome.Shell");
    EXPECT_TRUE(becomes(false)) << "the overview is open";
    service_.answers["Get"] = QVariant::fromValue(QDBusVariant(false));
    EXPECT_TRUE(becomes(true)) << "it closed, and the shell did not give the focus away";
    prompt.setFocused(false);
    EXPECT_FALSE(isLocked_);
}

TEST_F(SessionLockTest, BelievesTheLoginManagersHint)
{
    service_.answers["GetSession"] = QVariant::fromValue(QDBusObjectPath(kSessionPath));
    service_.answers["Get"] = QVariant::fromValue(QDBusVariant(true));
    const QDBusConnection manager = offer("org.freedesktop.login1");
    const auto change = [&manager](const char* interface, bool isLocked) {
        auto signal =
            QDBusMessage::createSignal(kSessionPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                                       QStringLiteral("PropertiesChanged"));
        signal << QString::fromLatin1(interface) << QVariantMap{{QStringLiteral("LockedHint"), isLocked}}
               << QStringList();
        manager.send(signal);
    };
    const LoginSessionWatch watch(connect(), [this](bool isLocked) { isLocked_ = isLocked; });
    EXPECT_TRUE(becomes(true)) << "locked at the start";
    change("org.freedesktop.login1.Session", false);
    EXPECT_TRUE(becomes(false));
    change("org.freedesktop.login1.Session", true);
    change("org.example.Other", false);
    EXPECT_TRUE(becomes(true));
}

} // namespace

} // namespace tocca::platform::linux

#include "Platform/Linux/Qt/LinuxApplication.h"
#include "Platform/Linux/Qt/Menu/LinuxMainMenu.h"
#include "Platform/Linux/Qt/Windows/AboutWindow.h"
#include "Platform/Linux/Qt/Windows/LinuxWindows.h"
#include "Platform/Linux/Qt/Windows/PopoverWindow.h"

#include "Linux/Qt/DesktopMachine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVirtualObject>
#include <QQmlComponent>
#include <QQmlEngine>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tocca::platform::linux {

namespace {

class Lines : public StandardOutput {
public:
    void printLine(std::string_view line) override { lines.emplace_back(line); }

    std::vector<std::string> lines;
};

class Delegate final : public ApplicationDelegate {
public:
    explicit Delegate(std::function<void()> launched)
        : launched_(std::move(launched))
    {}

    void applicationDidFinishLaunching() override { launched_(); }

    bool applicationShouldHandleReopen(bool /*hasVisibleWindows*/) override
    {
        ++reopenings;
        return true;
    }

    [[nodiscard]] bool applicationShouldTerminateAfterLastWindowClosed() override { return false; }

    int reopenings = 0;

private:
    std::function<void()> launched_;
};

TEST(ApplicationDesktop, IsTheOnlyOneAndIsToldOfALaterLaunch)
{
    OwnWindows windows;
    Lines lines;
    LinuxApplication application(
        {.display = "here", .launch = {}, .windows = windows, .output = lines, .hasStatusIcon = [] {
             return false;
         }});
    LinuxWindows factory(windows);
    Content content;
    const auto window = factory.make(
        {.title = "Studio", .contentSize = {400, 300}, .minimumSize = {200, 100}, .background = {}},
        content.view());
    window->setShouldClose([] { return false; });
    std::optional<int> secondsStatus;
    Delegate delegate([&] {
        instruments::Process second({TOCCA_SECOND_INSTANCE});
        runUntil(
            [&] { return (secondsStatus = second.waitForExit(std::chrono::milliseconds(1))).has_value(); });
        EXPECT_EQ(delegate.reopenings, 0) << "not before launching has ended";
        instruments::Process elsewhere({TOCCA_SECOND_INSTANCE, "elsewhere"});
        EXPECT_EQ(elsewhere.waitForExit(std::chrono::seconds(20)), 2) << "each display has its own";
        application.setActivationPolicy(ActivationPolicy::regular);
        window->makeKeyAndOrderFront();
        EXPECT_TRUE(runUntil([&] { return content.isShown(); }));
        EXPECT_TRUE(contains(property(content.id(), "_NET_WM_ICON"), "Icon (32 x 32)"));
        application.setActivationPolicy(ActivationPolicy::accessory);
        application.setActivationPolicy(ActivationPolicy::accessory);
        application.terminate();
    });
    EXPECT_EQ(application.run(delegate), 0) << "although a window would rather stay";
    EXPECT_EQ(secondsStatus, 0);
    EXPECT_EQ(delegate.reopenings, 1);
    EXPECT_THAT(lines.lines,
                testing::ElementsAre("Tocca keeps running without a window. Start it again to bring "
                                     "the window back."));

    instruments::Process next({TOCCA_SECOND_INSTANCE});
    EXPECT_EQ(next.waitForExit(std::chrono::seconds(20)), 2) << "the name is free again";
    instruments::Process alone({TOCCA_SECOND_INSTANCE}, {{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"}});
    EXPECT_EQ(alone.waitForExit(std::chrono::seconds(20)), 2) << "it runs without a bus";
}

class Target final : public MenuTarget {
public:
    bool performMenuAction(std::string_view action) override
    {
        actions.emplace_back(action);
        return action == "toggleNotchHUD:";
    }

    [[nodiscard]] MenuItemState validateMenuItem(const MenuItem& item) override
    {
        return {.isEnabled = item.action != "disabled:",
                .isChecked = isOn && item.action == "toggleNotchHUD:"};
    }

    bool isOn = true;
    std::vector<std::string> actions;
};

class MenuDesktop : public ::testing::Test {
protected:
    MenuDesktop()
    {
        menu_.install(
            {{"", {{"Quit Tocca", "terminate:", {"q"}}}},
             {"File", {{"Close Window", "performClose:", {"w"}}, {}}},
             {"View",
              {{"Show Notch Dynamic Island HUD", "toggleNotchHUD:", {.key = "n", .control = true}, true},
               {"Off", "disabled:", {"d"}}}}},
            target_);
    }

    /// A window with a text field that has the focus.
    std::unique_ptr<Window> showTextField()
    {
        auto view = std::make_unique<QuickView>([this](QQuickItem& parent) {
            QQmlComponent component(&engine_);
            component.setData("import QtQuick\nTextInput { focus: true; text: \"stem\" }", {});
            field_ = qobject_cast<QQuickItem*>(component.create());
            field_->setParentItem(&parent);
            return field_;
        });
        auto window = windows_.make(
            {.title = "Text", .contentSize = {400, 300}, .minimumSize = {200, 100}, .background = {}},
            std::move(view));
        window->makeKeyAndOrderFront();
        EXPECT_TRUE(runUntil([&] { return QGuiApplication::focusObject() == field_; }));
        return window;
    }

    bool perform(const char* action) { return menu_.perform({"Chosen", action, {}}); }

    int abouts_ = 0;
    int quits_ = 0;
    int hidings_ = 0;
    OwnWindows family_;
    LinuxWindows windows_{family_};
    Target target_;
    LinuxMainMenu menu_{
        family_,
        {.showAbout = [this] { ++abouts_; }, .quit = [this] { ++quits_; }, .hidden = [this] { ++hidings_; }}};
    QQmlEngine engine_;
    QQuickItem* field_ = nullptr;
};

TEST_F(MenuDesktop, DoesWhatTheDesktopAnswersToAndHandsOnTheRest)
{
    const auto window = showTextField();
    EXPECT_TRUE(perform("orderFrontStandardAboutPanel:"));
    EXPECT_TRUE(perform("terminate:"));
    EXPECT_EQ(abouts_ * 10 + quits_, 11);
    EXPECT_TRUE(perform("toggleNotchHUD:"));
    EXPECT_FALSE(perform("unknown:"));
    EXPECT_FALSE(perform("disabled:"));
    EXPECT_THAT(target_.actions, testing::ElementsAre("toggleNotchHUD:", "unknown:"));

    perform("selectAll:");
    EXPECT_EQ(field_->property("selectedText"), QStringLiteral("stem"));
    perform("cut:");
    EXPECT_EQ(field_->property("text"), QString());
    perform("undo:");
    EXPECT_EQ(field_->property("text"), QStringLiteral("stem"));
    perform("redo:");
    perform("paste:");
    EXPECT_EQ(field_->property("text"), QStringLiteral("stem"));

    perform("performZoom:");
    EXPECT_TRUE(runUntil([&] { return field_->window()->width() > 1000; }));
    perform("performZoom:");
    EXPECT_TRUE(runUntil([&] { return field_->window()->width() == 400; }));
    perform("hide:");
    EXPECT_FALSE(window->isVisible());
    perform("unhideAllApplications:");
    EXPECT_TRUE(window->isVisible());
}

TEST_F(MenuDesktop, TakesItsKeysInOwnWindowsAndLeavesTextFieldsTheirs)
{
    const auto window = showTextField();
    bool wantsToClose = false;
    window->setShouldClose([&] {
        wantsToClose = true;
        return false;
    });
    outputOf({"xdotool", "key", "ctrl+a"});
    outputOf({"xdotool", "key", "ctrl+x"});
    EXPECT_TRUE(runUntil([&] { return field_->property("text").toString().isEmpty(); }));
    outputOf({"xdotool", "key", "ctrl+super+n", "ctrl+d", "ctrl+w", "ctrl+q"});
    EXPECT_TRUE(runUntil([&] { return quits_ == 1; }));
    EXPECT_TRUE(runUntil([&] { return wantsToClose; }));
    EXPECT_THAT(target_.actions, testing::ElementsAre("toggleNotchHUD:"));
}

TEST_F(MenuDesktop, MinimisesTheOtherProgramsAndBringsThemBack)
{
    instruments::Process other({"xev"});
    const auto window = showTextField();
    const auto isMinimised = [] {
        const std::string id = outputOf({"xdotool", "search", "--name", "Event Tester"});
        return id.empty() ? std::string()
                          : outputOf({"xprop", "-id", id.substr(0, id.find('\n')), "WM_STATE"});
    };
    ASSERT_TRUE(runUntil([&] { return contains(isMinimised(), "Normal"); }));
    perform("hideOtherApplications:");
    EXPECT_TRUE(runUntil([&] { return contains(isMinimised(), "Iconic"); }));
    EXPECT_TRUE(window->isVisible());
    perform("unhideAllApplications:");
    EXPECT_TRUE(runUntil([&] { return contains(isMinimised(), "Normal"); }));
}

TEST_F(MenuDesktop, HidingKeepsThePlaceAndBringsBackOnlyWhatIsStillHidden)
{
    const auto window = showTextField();
    PopoverWindow popover(family_);
    Content content;
    popover.setContent(content.view());
    popover.resize(100, 100);
    popover.showAt(QRect(300, 0, 20, 20), std::nullopt);
    ASSERT_TRUE(runUntil([&] { return content.isShown(); }));
    const QPoint before = field_->window()->framePosition();
    outputOf({"xdotool", "windowmove", "--sync", std::to_string(field_->window()->winId()), "150", "90"});
    ASSERT_TRUE(runUntil([&] { return field_->window()->framePosition() != before; }));
    const QPoint place = field_->window()->framePosition();

    perform("hide:");
    EXPECT_EQ(hidings_, 1) << "told, so that it can say where the windows went";
    EXPECT_FALSE(window->isVisible() || popover.isVisible());
    perform("unhideAllApplications:");
    EXPECT_TRUE(runUntil([&] { return field_->window()->isExposed(); }));
    EXPECT_TRUE(runUntil([&] { return field_->window()->framePosition() == place; }));
    EXPECT_FALSE(popover.isVisible());

    perform("hide:");
    window->makeKeyAndOrderFront(); // a second start
    window->orderOut();             // and closed
    perform("unhideAllApplications:");
    EXPECT_FALSE(window->isVisible());
}

TEST_F(MenuDesktop, HoldsInTheAboutWindowWhichIsText)
{
    const auto hasFocus = [](const QWindow& window) {
        return outputOf({"xdotool", "getwindowfocus"}) == std::to_string(window.winId()) + "\n";
    };
    AboutWindow about(family_);
    about.showInFront();
    ASSERT_TRUE(runUntil([&] { return about.isActive() && hasFocus(about); }));
    outputOf({"xdotool", "key", "ctrl+super+n", "ctrl+q"});
    EXPECT_TRUE(runUntil([&] { return quits_ == 1; }));
    EXPECT_THAT(target_.actions, testing::ElementsAre("toggleNotchHUD:"));

    std::vector<std::string> texts;
    const std::function<void(QAccessibleInterface*)> read = [&](QAccessibleInterface* part) {
        if (part->role() == QAccessible::StaticText) {
            texts.push_back(part->text(QAccessible::Name).toStdString());
        }
        for (int i = 0; i < part->childCount(); ++i) {
            read(part->child(i));
        }
    };
    read(QAccessible::queryAccessibleInterface(&about));
    EXPECT_THAT(texts, testing::ElementsAre("Tocca", testing::StartsWith("Version "),
                                            "The sound of a mechanical keyboard",
                                            "Free software under the MIT licence"));
    outputOf({"xdotool", "key", "Escape"});
    EXPECT_TRUE(runUntil([&] { return !about.isVisible() && !about.isActive(); }));
    about.showInFront();
    ASSERT_TRUE(runUntil([&] { return about.isActive() && hasFocus(about); }));
    outputOf({"xdotool", "key", "ctrl+w"});
    EXPECT_TRUE(runUntil([&] { return !about.isVisible(); }));
}

/// What shows menus outside the windows on desktops that have it.
class Registrar : public QDBusVirtualObject {
public:
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        window = message.arguments().value(0).toUInt();
        menuPath = qvariant_cast<QDBusObjectPath>(message.arguments().value(1)).path();
        connection.send(message.createReply());
        return true;
    }

    uint window = 0;
    QString menuPath;
};

TEST_F(MenuDesktop, IsShownByADesktopThatHasAPlaceForIt)
{
    const auto window = showTextField();
    EXPECT_FALSE(menu_.isShownByDesktop());
    int changes = 0;
    const auto changed = menu_.onDesktopChange([&] { ++changes; });
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("registrar"));
    Registrar registrar;
    const auto kName = QStringLiteral("com.canonical.AppMenu.Registrar");
    ASSERT_TRUE(bus.registerVirtualObject(QStringLiteral("/com/canonical/AppMenu/Registrar"), &registrar));
    ASSERT_TRUE(bus.registerService(kName));
    ASSERT_TRUE(runUntil([&] { return registrar.window != 0; }));
    EXPECT_EQ(registrar.window, field_->window()->winId());
    EXPECT_TRUE(menu_.isShownByDesktop());

    const auto layout = [&] {
        auto call = QDBusMessage::createMethodCall(
            QDBusConnection::sessionBus().baseService(), registrar.menuPath,
            QStringLiteral("com.canonical.dbusmenu"), QStringLiteral("GetLayout"));
        const QDBusPendingCall pending = bus.asyncCall(call << 0 << -1 << QStringList());
        EXPECT_TRUE(runUntil([&] { return pending.isFinished(); }));
        return qdbus_cast<DBusMenuTree>(pending.reply().arguments().value(1));
    };
    for (const bool isOn : {true, false}) {
        target_.isOn = isOn;
        const auto tree = layout();
        ASSERT_EQ(tree.children.size(), 3);
        const auto properties = tree.children[2].children[0].properties;
        EXPECT_EQ(properties[QStringLiteral("toggle-type")], QStringLiteral("checkmark"));
        EXPECT_EQ(properties[QStringLiteral("toggle-state")], isOn ? 1 : 0);
        EXPECT_FALSE(tree.children[0].children[0].properties.contains(QStringLiteral("toggle-type")));
    }
    const auto hud = layout().children[2].children[0].properties;
    EXPECT_EQ(qdbus_cast<QList<QStringList>>(hud[QStringLiteral("shortcut")]).value(0),
              (QStringList{QStringLiteral("Control"), QStringLiteral("Super"), QStringLiteral("n")}));

    bus.unregisterService(kName);
    EXPECT_TRUE(runUntil([&] { return !menu_.isShownByDesktop(); }));
    EXPECT_EQ(changes, 2);
    QDBusConnection::disconnectFromBus(QStringLiteral("registrar"));
}

} // namespace

} // namespace tocca::platform::linux

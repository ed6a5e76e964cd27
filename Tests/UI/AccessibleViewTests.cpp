#include "App/MainMenuTable.h"
#include "UI/Access/Announcement.h"
#include "UI/MenuDouble.h"
#include "UI/Popover/MenuBarViewModel.h"
#include "UI/Quick/QmlView.h"
#include "UI/Studio/MainWindowViewModel.h"
#include "UI/ViewTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QColor>
#include <QFont>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QUrl>

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace tocca::ui {
namespace {

using testing::ElementsAre;

/// Views as assistive programs know them.
struct AccessibleView : ViewTest {
    AccessibleView()
    {
        machine.host.mainMenu().install(app::mainMenuTable(), target);
        machine.host.settle();
    }

    void openPopover() { show("Popover/MenuBarView.qml", popover, QSize(360, 560)); }

    /// Keeps what is announced from now on.
    void listen()
    {
        QQmlComponent lookup(&engine);
        lookup.setData("import QtQml; import Tocca.UI; QtObject { property QtObject it: Announcement }", {});
        const std::unique_ptr<QObject> holder(lookup.create());
        auto* const announcement = holder->property("it").value<Announcement*>();
        ASSERT_NE(announcement, nullptr);
        QObject::connect(announcement, &Announcement::told, &window, [this](QQuickItem* item) {
            EXPECT_EQ(of(item).role(), QAccessible::Notification);
            announced.append(of(item).text(QAccessible::Name));
        });
    }

    void openStudio(StudioTab tab)
    {
        show("Studio/MainWindowView.qml", studio, QSize(960, 650));
        studio.selectTab(tab);
        settle();
    }

    static QAccessibleInterface& of(QQuickItem* item) { return *QAccessible::queryAccessibleInterface(item); }

    /// What has the keyboard's focus, in words: role number, name, whether it says that it has the focus.
    void expectFocus(QAccessible::Role role, const QString& name)
    {
        auto& focused = of(window.activeFocusItem());
        EXPECT_EQ(focused.role(), role) << qPrintable(name);
        EXPECT_EQ(focused.text(QAccessible::Name), name);
        EXPECT_TRUE(focused.state().focusable && focused.state().focused) << qPrintable(name);
    }

    /// What has been announced since it was last asked.
    QStringList takeAnnounced() { return std::exchange(announced, {}); }

    QStringList announced;
    MenuDouble target;
    MenuBarViewModel popover{machine.all, [] {}, [] {}};
    MainWindowViewModel studio{machine.all};
};

TEST_F(AccessibleView, OpenMenusSayWhatTheyAreAndWhereTheFocusIs)
{
    openPopover();
    focus("deskSurface");
    key(Qt::Key_Return);
    expectFocus(QAccessible::MenuItem, "4mm Felt Deskmat (Thock)");
    EXPECT_TRUE(of(window.activeFocusItem()).state().checkable &&
                of(window.activeFocusItem()).state().checked);
    EXPECT_EQ(of(window.activeFocusItem()).parent()->role(), QAccessible::PopupMenu);
    EXPECT_EQ(of(window.activeFocusItem()).parent()->text(QAccessible::Name),
              "Deskmat & Acoustic Case Surface");
    key(Qt::Key_Down);
    expectFocus(QAccessible::MenuItem, "Hardwood Desk (Crisp)");
    EXPECT_TRUE(of(window.activeFocusItem()).state().checkable);
    EXPECT_FALSE(of(window.activeFocusItem()).state().checked);
}

TEST_F(AccessibleView, TheMainMenuSaysWhatItIsAndWhereTheFocusIs)
{
    openStudio(StudioTab::showroom);
    target.isHudOn = false;
    key(Qt::Key_F10);
    key(Qt::Key_Left);
    key(Qt::Key_Left);
    expectFocus(QAccessible::PopupMenu, "View");
    key(Qt::Key_Down);
    expectFocus(QAccessible::MenuItem, "Show Notch Dynamic Island HUD");
    EXPECT_TRUE(of(window.activeFocusItem()).state().checkable) << "although it is not checked";
    key(Qt::Key_Escape);
    focus("menu1");
    expectFocus(QAccessible::ButtonMenu, "File");
    of(item("menu2")).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    settle();
    EXPECT_EQ(studio.mainMenu()->openMenu(), 2);
}

TEST_F(AccessibleView, OptionsThatExcludeEachOtherAreOneStop)
{
    openStudio(StudioTab::acoustics);
    focus("deskSurface");
    expectFocus(QAccessible::RadioButton, "4mm Felt Deskmat (Thock)");
    EXPECT_EQ(of(item("deskSurface")).role(), QAccessible::Grouping);
    EXPECT_EQ(of(item("deskSurface")).childCount(), 4);
    key(Qt::Key_Right);
    expectFocus(QAccessible::RadioButton, "Hardwood Desk (Crisp)");
    EXPECT_EQ(machine.engine.deskSurface.get(), audio::AcousticDeskSurface::hardwoodDesk);
}

TEST_F(AccessibleView, PacksAreOneStopAndChosenByArrows)
{
    openPopover();
    focus("builtInPack0");
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    expectFocus(QAccessible::RadioButton, "Cherry MX Brown");
    EXPECT_EQ(machine.engine.currentSwitchType.get(), audio::SwitchType::cherryMXBrown);
    EXPECT_EQ(traversal().filter("builtInPack"), QStringList("builtInPack2"));
}

TEST_F(AccessibleView, WhatAnAssistiveProgramSetsReachesTheModel)
{
    openStudio(StudioTab::acoustics);
    auto& volume = of(item("volume"));
    EXPECT_EQ(volume.valueInterface()->minimumValue().toDouble(), 0);
    EXPECT_EQ(volume.valueInterface()->maximumValue().toDouble(), 1);
    for (const double level : {0.25, 0.53}) {
        volume.valueInterface()->setCurrentValue(level);
        EXPECT_NEAR(machine.engine.volume.get(), level, 1e-6);
        EXPECT_NEAR(volume.valueInterface()->currentValue().toDouble(), level, 1e-6);
    }
    EXPECT_EQ(text("volumeReading"), "53%");
    volume.valueInterface()->setCurrentValue(7);
    EXPECT_EQ(machine.engine.volume.get(), 1.0F);
    EXPECT_EQ(volume.valueInterface()->currentValue().toDouble(), 1);
    machine.engine.volume.set(0.5F);
    EXPECT_EQ(volume.valueInterface()->currentValue().toDouble(), 0.5) << "it still follows the model";

    studio.selectTab(StudioTab::showroom);
    settle();
    focus("search");
    click("search");
    of(window.activeFocusItem()).setText(QAccessible::Value, "thock");
    EXPECT_EQ(studio.showroom()->searchText(), "thock");
    studio.showroom()->search("x");
    EXPECT_EQ(of(window.activeFocusItem()).text(QAccessible::Value), "x");
}

TEST_F(AccessibleView, ImportsAndMutesAreReadAloud)
{
    openPopover();
    listen();
    machine.smartMute.smartMuteReason.set("Active in Zoom");
    machine.smartMute.isSmartMuted.set(true);
    settle();
    EXPECT_TRUE(takeAnnounced().contains("Smart Mute Active. Active in Zoom"));
    machine.smartMute.smartMuteReason.set("Microphone in use");
    EXPECT_THAT(takeAnnounced(), ElementsAre("Smart Mute Active. Microphone in use"));

    for (const char* name : {"Alps", "Buckling"}) {
        machine.host.files().write(std::string("/downloads/") + name + "/press.wav", "press");
        popover.handleDrop({QUrl::fromLocalFile(QString("/downloads/") + name)});
        machine.host.settle();
        settle();
        EXPECT_EQ(of(item("importMessage")).role(), QAccessible::Notification)
            << "read as it comes into sight";
    }
    EXPECT_THAT(takeAnnounced(), ElementsAre("Imported 'Buckling'!")) << "in the place of the one before";
    window.hide();
    machine.smartMute.smartMuteReason.set("Nobody sees it");
    EXPECT_THAT(takeAnnounced(), ElementsAre());
}

TEST_F(AccessibleView, TheCapsAreOnePicture)
{
    openStudio(StudioTab::stage);
    auto& board = of(item("board"));
    EXPECT_EQ(board.role(), QAccessible::Graphic);
    EXPECT_EQ(board.text(QAccessible::Name), "Keyboard");
    EXPECT_EQ(board.childCount(), 0);
}

TEST_F(AccessibleView, ControlsSayWhatTheyDoAndShowTheirHintWithTheFocus)
{
    openPopover();
    EXPECT_EQ(of(item("isEnabled")).text(QAccessible::Name), "Tocca sounds");
    const auto shows = [this](const QString& words) {
        const auto items = window.contentItem()->findChildren<QQuickItem*>();
        return std::any_of(items.begin(), items.end(), [&](const QQuickItem* part) {
            return part->isVisible() && part->inherits("QQuickText") && part->property("text") == words;
        });
    };
    EXPECT_FALSE(shows("Open Tocca Studio Console"));
    focus("openStudio");
    EXPECT_TRUE(eventually([&] { return shows("Open Tocca Studio Console"); }));
}

TEST_F(AccessibleView, ALongNameIsToldInFullAndCanBeCopied)
{
    const std::string name = "A pack with a name that is much longer than any card of the showroom is wide";
    machine.loader.availableCustomPacks.set(
        {{.id = "custom_long", .name = name, .description = "", .folderURL = "/p"}});
    openStudio(StudioTab::showroom);
    const auto audition = QString::fromStdString("audition " + name);
    focus(audition);
    EXPECT_EQ(property(audition, "hint").toString().toStdString(), name);
    QMetaObject::invokeMethod(window.activeFocusItem(), "copy");
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), name);

    studio.selectTab(StudioTab::settings);
    settle();
    key(Qt::Key_Tab);
    focus("openPacks");
    key(Qt::Key_Backtab);
    expectFocus(QAccessible::EditableText, "Soundpacks Directory");
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(),
              machine.loader.customPacksDirectory().string());
}

/// Contrast of two opaque colours as WCAG counts it.
double contrast(const QColor& one, const QColor& other)
{
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
               0.0722 * linear(colour.blueF());
    };
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

TEST_F(AccessibleView, WhatOneMustSeeStandsOutFromItsGround)
{
    openPopover();
    QQmlComponent component(&engine);
    component.setData("import QtQml; import Tocca.UI; QtObject { property QtObject theme: Theme }", {});
    const std::unique_ptr<QObject> holder(component.create());
    const auto* theme = holder->property("theme").value<QObject*>();
    for (const char* name : {"focusRing", "controlBorder", "warning"}) {
        for (const char* ground : {"chassisBg", "cardBg"}) {
            EXPECT_GE(
                contrast(theme->property(name).value<QColor>(), theme->property(ground).value<QColor>()), 3)
                << name << " on " << ground;
        }
    }
    focus("openStudio");
    const QImage with = grab();
    const auto* button = item("openStudio");
    const QPointF corner = button->mapToScene(QPointF(button->width() / 2, -3));
    EXPECT_EQ(with.pixelColor(corner.toPoint()), theme->property("focusRing").value<QColor>())
        << "the ring is opaque";
}

TEST_F(AccessibleView, HiddenWindowsAndPagesAnimateNothing)
{
    openPopover();
    setReducesMotion(engine, false);
    const auto strength = [this] { return item("soundstageDot")->property("strength").toDouble(); };
    machine.engine.keyVisualizerTrigger.set(1);
    EXPECT_GT(strength(), 0);
    window.hide();
    EXPECT_EQ(strength(), 0);
    machine.engine.keyVisualizerTrigger.set(2);
    machine.engine.lastActiveKeyPan.set(0.55F);
    EXPECT_EQ(strength(), 0);
    const auto x = item("soundstageDot")->x();
    QCoreApplication::processEvents();
    EXPECT_EQ(item("soundstageDot")->x(), x) << "it is there at once";
    EXPECT_EQ(item("pulsingLogo")->scale(), 1);
}

TEST_F(AccessibleView, AllOfACapFollowsItsSpring)
{
    openStudio(StudioTab::stage);
    setReducesMotion(engine, false);
    QQuickItem* cap = nullptr;
    QQuickItem* label = nullptr;
    const std::function<void(QQuickItem&)> look = [&](QQuickItem& part) {
        if (part.objectName() == "capLabel" && part.property("text") == "A") {
            label = &part;
            cap = part.parentItem();
        }
        for (QQuickItem* child : part.childItems()) {
            look(*child);
        }
    };
    look(*item("board"));
    ASSERT_NE(cap, nullptr);
    const QColor dark = label->property("color").value<QColor>();
    machine.monitor.activeKeyCode.set(std::uint16_t{0});
    bool isBetween = false;
    EXPECT_TRUE(eventually([&] {
        const double light = cap->property("light").toDouble();
        const auto colour = label->property("color").value<QColor>();
        const int weight = label->property("font").value<QFont>().weight();
        if (light > 0.2 && light < 0.8) {
            isBetween = colour != dark && colour != QColor(Qt::white) && weight > QFont::Medium &&
                        weight < QFont::Bold;
        }
        return light == 1 && cap->property("depth") == 1;
    }));
    EXPECT_TRUE(isBetween);
    EXPECT_EQ(label->property("color").value<QColor>(), QColor(Qt::white));
    EXPECT_EQ(label->property("font").value<QFont>().weight(), QFont::Bold);
}

} // namespace
} // namespace tocca::ui

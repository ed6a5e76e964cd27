#include "App/MainMenuTable.h"
#include "UI/MenuDouble.h"
#include "UI/Popover/MenuBarViewModel.h"
#include "UI/Studio/MainWindowViewModel.h"
#include "UI/ViewTest.h"

#include <QKeyEvent>
#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tocca::ui {
namespace {

struct PopoverInput : ViewTest {
    PopoverInput()
    {
        machine.host.settle();
        show("Popover/MenuBarView.qml", model, QSize(360, 560));
    }

    double scrolled() { return property("scrollArea", "contentY").toDouble(); }

    MenuBarViewModel model{machine.all, [] {}, [] {}};
};

struct StudioInput : ViewTest {
    StudioInput()
    {
        machine.host.mainMenu().install(app::mainMenuTable(), target);
        machine.host.settle();
        show("Studio/MainWindowView.qml", model, QSize(960, 650));
    }

    void send(QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent event(type, key, modifiers);
        QCoreApplication::sendEvent(&window, &event);
    }

    bool isMenuOpen() { return model.mainMenu()->openMenu() >= 0; }

    MenuDouble target;
    MainWindowViewModel model{machine.all};
};

TEST_F(PopoverInput, FingersScrollThePageByWhatTheyMoveAndTurnNoSlider)
{
    swipe("scrollArea", -30);
    EXPECT_DOUBLE_EQ(scrolled(), 15);
    for (int i = 0; i < 4; ++i) {
        swipe("scrollArea", -3);
    }
    EXPECT_DOUBLE_EQ(scrolled(), 21) << "the finest movements add up";

    focus("volume");
    const double before = scrolled();
    machine.engine.volume.set(0.5F);
    swipe("volume", 40);
    EXPECT_EQ(machine.engine.volume.get(), 0.5F);
    EXPECT_DOUBLE_EQ(scrolled(), before - 20);

    // A wheel that has begun to scroll goes on, whatever comes under the pointer.
    wheel("scrollArea", 0.5);
    wheel("volume", -1);
    EXPECT_EQ(machine.engine.volume.get(), 0.5F);
}

TEST_F(PopoverInput, ASliderGoesFromPercentToPercent)
{
    focus("volume");
    machine.engine.volume.set(0.49F);
    for (int percent = 50; percent <= 62; ++percent) {
        key(Qt::Key_Right);
        EXPECT_EQ(text("volumeReading").toStdString(), std::to_string(percent) + "%");
    }
    for (int percent = 61; percent >= 50; --percent) {
        key(Qt::Key_Left);
        EXPECT_EQ(text("volumeReading").toStdString(), std::to_string(percent) + "%");
    }
    machine.engine.volume.set(0.095F);
    key(Qt::Key_Right);
    EXPECT_EQ(text("volumeReading"), "10%");
    wheel("volume", 0.5);
    EXPECT_EQ(text("volumeReading"), "10%") << "half a notch waits for its other half";
    wheel("volume", 0.5);
    EXPECT_EQ(text("volumeReading"), "11%");
}

TEST_F(PopoverInput, AKeyThatIsHeldOpensAMenuOnceAndChoosesNothing)
{
    for (const Qt::Key opener : {Qt::Key_Return, Qt::Key_Space}) {
        focus("deskSurface");
        key(opener);
        for (int i = 0; i < 3; ++i) {
            repeat(opener);
        }
        EXPECT_TRUE(property("deskSurface", "opened").toBool());
        key(Qt::Key_Backtab);
        EXPECT_FALSE(property("deskSurface", "opened").toBool()) << "Shift and Tab close it";
    }
    EXPECT_EQ(machine.engine.deskSurface.get(), audio::AcousticDeskSurface::feltDeskmat);
}

TEST_F(StudioInput, OnlyAltAloneOpensTheMenu)
{
    const auto press = [this] { send(QEvent::KeyPress, Qt::Key_Alt); };
    const auto release = [this] { send(QEvent::KeyRelease, Qt::Key_Alt, Qt::AltModifier); };
    press();
    release();
    EXPECT_TRUE(isMenuOpen());
    press();
    release();
    EXPECT_FALSE(isMenuOpen()) << "it closes it again";

    press();
    QTest::mouseClick(&window, Qt::LeftButton, Qt::AltModifier, QPoint(500, 640));
    release();
    EXPECT_FALSE(isMenuOpen()) << "a click with Alt held";
    press();
    window.setX(window.x() + 10);
    settle();
    release();
    EXPECT_FALSE(isMenuOpen()) << "the window was dragged";
    press();
    wheel("viewport", 1);
    release();
    EXPECT_FALSE(isMenuOpen()) << "the wheel with Alt held";
    send(QEvent::KeyPress, Qt::Key_Control);
    send(QEvent::KeyPress, Qt::Key_Alt, Qt::ControlModifier);
    key(Qt::Key_S, Qt::ControlModifier | Qt::AltModifier);
    send(QEvent::KeyRelease, Qt::Key_Alt, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_FALSE(isMenuOpen()) << "Ctrl+Alt+S";
    EXPECT_FALSE(has("tabs"));
}

TEST_F(StudioInput, ShiftAndTabLeaveNoMenuBehind)
{
    click("search");
    const QQuickItem* field = window.activeFocusItem();
    key(Qt::Key_F10);
    repeat(Qt::Key_F10);
    EXPECT_TRUE(isMenuOpen()) << "a key that is held opens it once";
    key(Qt::Key_Down);
    key(Qt::Key_Backtab);
    EXPECT_FALSE(isMenuOpen());
    EXPECT_EQ(window.activeFocusItem(), field);
}

TEST_F(StudioInput, TheTabKeyGoesFromSidebarToPageToMenu)
{
    const QStringList order = traversal();
    const auto sidebar = order.indexOf("tab0");
    const auto page = order.indexOf("search");
    ASSERT_GE(sidebar, 0);
    const auto first = order.indexOf("notchHUD");
    const auto menu = order.indexOf("menu0");
    EXPECT_LT(sidebar, first);
    EXPECT_LT(first, menu);
    EXPECT_LE(page, menu);
    EXPECT_EQ(order.filter("menu").size(), 1) << "one stop for the whole strip";

    focus("menu0");
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    key(Qt::Key_Down);
    EXPECT_EQ(model.mainMenu()->openMenu(), 2);
}

TEST_F(StudioInput, ASmallWindowScrollsToWhatHasTheFocus)
{
    const QSize small(700, 420);
    window.resize(small);
    window.contentItem()->setSize(small);
    settle();
    for (const char* control : {"tab0", "notchHUD", "audition Typewriter", "hideSidebar"}) {
        focus(control);
        const QQuickItem& reached = *item(control);
        const QPointF middle = reached.mapRectToScene(reached.boundingRect()).center();
        EXPECT_TRUE(QRectF(0, 0, 700, 420).contains(middle)) << control;
    }
    EXPECT_LE(item("viewport")->width(), 700);
    EXPECT_GE(item("pagination")->width() + 230, 920) << "the page keeps its room";
}

TEST_F(StudioInput, TheFocusStaysWhenItsControlDisappears)
{
    std::vector<audio::SoundPackInfo> packs(3);
    for (std::size_t i = 0; i < packs.size(); ++i) {
        packs[i].id = packs[i].name = "Pack " + std::to_string(i);
    }
    machine.loader.availableCustomPacks.set(packs);
    settle();
    focus("next");
    key(Qt::Key_Return);
    EXPECT_FALSE(property("next", "enabled").toBool());
    EXPECT_EQ(window.activeFocusItem(), item("previous"));

    focus("hideSidebar");
    key(Qt::Key_Return);
    settle();
    const QQuickItem* now = window.activeFocusItem();
    ASSERT_NE(now, nullptr);
    EXPECT_TRUE(now->activeFocusOnTab() && now->isVisible());
}

TEST_F(StudioInput, APageOfTheShowroomStartsAtTheTop)
{
    std::vector<audio::SoundPackInfo> packs(9);
    for (std::size_t i = 0; i < packs.size(); ++i) {
        packs[i].id = packs[i].name = "Pack " + std::to_string(i);
    }
    machine.loader.availableCustomPacks.set(packs);
    const QSize small(960, 480);
    window.resize(small);
    window.contentItem()->setSize(small);
    settle();
    swipe("card0", -90);
    EXPECT_GT(property("grid", "contentY").toDouble(), 0);
    model.showroom()->showNextPage();
    EXPECT_EQ(property("grid", "contentY").toDouble(), 0);
}

} // namespace
} // namespace tocca::ui

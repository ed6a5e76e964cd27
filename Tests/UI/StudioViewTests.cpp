#include "App/MainMenuTable.h"
#include "UI/Studio/MainWindowViewModel.h"
#include "UI/ViewTest.h"

#include <QQmlComponent>

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

namespace tocca::ui {
namespace {

using testing::ElementsAre;

class Target final : public platform::MenuTarget {
public:
    bool performMenuAction(std::string_view action) override
    {
        performed.emplace_back(action);
        return true;
    }

    platform::MenuItemState validateMenuItem(const platform::MenuItem& item) override
    {
        return {.isEnabled = item.action != "undo:", .isChecked = item.action == app::kToggleNotchHUD};
    }

    std::vector<std::string> performed;
};

class StudioViewTest : public ViewTest {
protected:
    StudioViewTest()
    {
        machine.host.mainMenu().install(app::mainMenuTable(), target);
        machine.host.settle(); // the first look for packs finds none
        setPacks(1);
        show(QStringLiteral("Studio/MainWindowView.qml"), model, QSize(960, 650));
        withoutMotion();
    }

    ~StudioViewTest() override { delete window.contentItem()->childItems().value(0); }

    void withoutMotion()
    {
        QQmlComponent component(&engine);
        component.setData(
            "import QtQml; import Tocca.UI; QtObject { Component.onCompleted: Theme.reducesMotion = true }",
            {});
        delete component.create();
    }

    void setPacks(int count)
    {
        std::vector<audio::SoundPackInfo> packs;
        for (int i = 1; i <= count; ++i) {
            const std::string name = "Pack " + std::to_string(i);
            packs.push_back(
                {.id = "custom_" + name, .name = name, .description = "", .folderURL = "/packs/" + name});
        }
        machine.loader.availableCustomPacks.set(packs);
    }

    void open(StudioTab tab)
    {
        model.selectTab(tab);
        settle();
    }

    [[nodiscard]] QString text(const char* objectName)
    {
        return property(QLatin1String(objectName), "text").toString();
    }

    /// The titles of the cards, and a star behind the active one.
    [[nodiscard]] std::string cards()
    {
        std::string titles;
        for (int i = 0; has(QStringLiteral("card%1").arg(i)); ++i) {
            const QString card = QStringLiteral("card%1").arg(i);
            titles += (i == 0 ? "" : ", ") + property(card, "title").toString().toStdString() +
                      (texts(card).contains(QStringLiteral("ACTIVE")) ? "*" : "");
        }
        return titles;
    }

    Target target;
    MainWindowViewModel model{machine.all};
};

TEST_F(StudioViewTest, ChoosesThePageByClickAndByArrows)
{
    const auto header = [this] { return texts(QStringLiteral("tabs")).size(); };
    EXPECT_EQ(header(), 6);
    click(QStringLiteral("tab3"));
    EXPECT_EQ(model.selectedTab(), StudioTab::privacy);
    EXPECT_TRUE(has(QStringLiteral("autoMuteOnCalls")));

    focus(QStringLiteral("tabs"));
    key(Qt::Key_Down);
    EXPECT_EQ(model.selectedTab(), StudioTab::telemetry);
    EXPECT_FALSE(has(QStringLiteral("autoMuteOnCalls")));
    key(Qt::Key_End);
    key(Qt::Key_Down);
    EXPECT_EQ(model.selectedTab(), StudioTab::settings);
    key(Qt::Key_Home);
    key(Qt::Key_Up);
    EXPECT_EQ(model.selectedTab(), StudioTab::showroom);
}

TEST_F(StudioViewTest, HidesTheSidebarAndShowsItAgain)
{
    click(QStringLiteral("hideSidebar"));
    EXPECT_TRUE(eventually([this] { return !has(QStringLiteral("tabs")); }));
    click(QStringLiteral("showSidebar"));
    EXPECT_TRUE(eventually([this] { return has(QStringLiteral("tabs")); }));
    EXPECT_FALSE(has(QStringLiteral("showSidebar")));
    key(Qt::Key_S, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_TRUE(eventually([this] { return !has(QStringLiteral("tabs")); }));
}

TEST_F(StudioViewTest, SaysWhetherTheSessionIsHeard)
{
    machine.monitor.hasAccessibilityPermission.set(false);
    EXPECT_THAT(texts(QStringLiteral("status")), ElementsAre(QStringLiteral("PERMISSION PENDING")));
    machine.monitor.hasAccessibilityPermission.set(true);
    EXPECT_THAT(texts(QStringLiteral("status")), ElementsAre(QStringLiteral("GLOBAL HOOK ACTIVE")));
}

TEST_F(StudioViewTest, MarksTheCardOfTheSoundThatPlays)
{
    EXPECT_EQ(cards(), "Holy Panda*, Cherry MX Blue, Cherry MX Brown, NK Cream, Typewriter, Pack 1");
    click(QStringLiteral("audition Pack 1"));
    EXPECT_EQ(cards(), "Holy Panda, Cherry MX Blue, Cherry MX Brown, NK Cream, Typewriter, Pack 1*");
    machine.engine.currentSwitchType.set(audio::SwitchType::typewriter);
    EXPECT_EQ(cards(), "Holy Panda, Cherry MX Blue, Cherry MX Brown, NK Cream, Typewriter, Pack 1*");
    focus(QStringLiteral("audition NK Cream"));
    key(Qt::Key_Space);
    EXPECT_EQ(cards(), "Holy Panda, Cherry MX Blue, Cherry MX Brown, NK Cream*, Typewriter, Pack 1");
    EXPECT_FALSE(machine.engine.selectedCustomPack.get());
}

TEST_F(StudioViewTest, TurnsPagesAndSearches)
{
    setPacks(8);
    EXPECT_FALSE(property(QStringLiteral("previous"), "enabled").toBool());
    click(QStringLiteral("next"));
    click(QStringLiteral("next"));
    EXPECT_EQ(cards(), "Pack 8");
    EXPECT_FALSE(property(QStringLiteral("next"), "enabled").toBool());
    EXPECT_THAT(texts(QStringLiteral("pagination")),
                ElementsAre(QStringLiteral("PREV"), QStringLiteral("3"), QStringLiteral("OF 3"),
                            QStringLiteral("NEXT"),
                            QStringLiteral("SHOWING 13–13 OF 13 SWITCHES (6 PER PAGE)")));

    click(QStringLiteral("search"));
    type(QStringLiteral("THOCK"));
    EXPECT_EQ(model.showroom()->searchText(), QStringLiteral("THOCK"));
    EXPECT_EQ(cards(), "Holy Panda*");
    type(QStringLiteral("x"));
    EXPECT_EQ(cards(), "");
    model.showroom()->search({});

    click(QStringLiteral("filter"));
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(cards(), "Holy Panda*, Cherry MX Brown");
}

TEST_F(StudioViewTest, TogglesWhatTheControllersSay)
{
    struct Row {
        StudioTab tab;
        const char* control;
        Published<bool>& setting;
    };

    const std::vector<Row> rows{
        {StudioTab::acoustics, "presenceEQ", machine.engine.isPresenceEQEnabled},
        {StudioTab::acoustics, "upstroke", machine.engine.playUpstroke},
        {StudioTab::acoustics, "spatialAudio", machine.engine.isSpatialAudioEnabled},
        {StudioTab::acoustics, "haptics", machine.engine.isHapticsEnabled},
        {StudioTab::acoustics, "mouseAudio", machine.engine.isMouseAudioEnabled},
        {StudioTab::acoustics, "scrollRatchet", machine.engine.isScrollRatchetEnabled},
        {StudioTab::acoustics, "notchHUD", machine.notchHUD.isEnabled},
        {StudioTab::acoustics, "underglow", machine.underglow.isEnabled},
        {StudioTab::privacy, "autoMuteOnCalls", machine.smartMute.autoMuteOnCalls},
        {StudioTab::privacy, "muteOnSensitiveApps", machine.smartMute.muteOnSensitiveApps},
        {StudioTab::settings, "launchAtLogin", machine.launchAtLogin.isEnabled},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.control);
        const QString control = QLatin1String(row.control);
        open(row.tab);
        const bool before = row.setting.get();
        EXPECT_EQ(property(control, "checked").toBool(), before);
        click(control);
        machine.host.settle();
        EXPECT_EQ(row.setting.get(), !before);
        EXPECT_EQ(property(control, "checked").toBool(), !before);
        row.setting.set(before);
        EXPECT_EQ(property(control, "checked").toBool(), before);
    }
    open(StudioTab::showroom);
    click(QStringLiteral("notchHUD"));
    EXPECT_TRUE(machine.notchHUD.isEnabled.get());
    EXPECT_EQ(text("notchHUD"), QStringLiteral("NOTCH HUD: ON"));
}

TEST_F(StudioViewTest, LeavesTheBoxEmptyWhenTheDesktopRefusesTheLoginItem)
{
    machine.host.loginItem().refusal = "no";
    open(StudioTab::settings);
    click(QStringLiteral("launchAtLogin"));
    machine.host.settle();
    EXPECT_FALSE(property(QStringLiteral("launchAtLogin"), "checked").toBool());
    click(QStringLiteral("openPacks"));
    ASSERT_EQ(machine.host.workspace().openedUrls.size(), 1U);
    EXPECT_EQ(machine.host.workspace().openedUrls.front(),
              "file://" + machine.loader.customPacksDirectory().string());
    EXPECT_EQ(text("packsPath").toStdString(), machine.loader.customPacksDirectory().string());
}

TEST_F(StudioViewTest, SetsLevelsAndChoices)
{
    open(StudioTab::acoustics);
    click(QStringLiteral("preset1"));
    EXPECT_FLOAT_EQ(machine.engine.volume.get(), 0.5F);
    EXPECT_EQ(text("volumeReading"), QStringLiteral("50%"));
    EXPECT_TRUE(property(QStringLiteral("preset1"), "on").toBool());
    focus(QStringLiteral("volume"));
    key(Qt::Key_PageUp);
    EXPECT_NEAR(machine.engine.volume.get(), 0.6, 1e-6);
    EXPECT_FALSE(property(QStringLiteral("preset1"), "on").toBool());
    machine.engine.volume.set(0.74F);
    EXPECT_EQ(text("volumeReading"), QStringLiteral("74%"));
    EXPECT_TRUE(property(QStringLiteral("preset2"), "on").toBool());

    EXPECT_EQ(text("lubeReading"), QStringLiteral("Factory Dry"));
    focus(QStringLiteral("lube"));
    key(Qt::Key_End);
    EXPECT_EQ(text("lubeReading"), QStringLiteral("100% Lubed"));

    focus(QStringLiteral("deskSurface"));
    key(Qt::Key_Right);
    EXPECT_EQ(machine.engine.deskSurface.get(), audio::AcousticDeskSurface::hardwoodDesk);
    EXPECT_EQ(text("deskSurfaceLine"), QStringLiteral("Snappy acoustic bounce with crisp transients"));
    focus(QStringLiteral("mouseProfile"));
    key(Qt::Key_Down);
    EXPECT_EQ(machine.engine.mouseProfile.get(), audio::MouseSwitchProfile::omron50M);
    EXPECT_EQ(text("mouseProfileLine"), QStringLiteral("Light, responsive classic office snap"));
    focus(QStringLiteral("underglowTheme"));
    key(Qt::Key_Right);
    EXPECT_EQ(machine.underglow.currentTheme.get(), UnderglowTheme::cyberpunk);
}

TEST_F(StudioViewTest, ShowsWhyThereIsSilenceOnlyWhileThereIs)
{
    open(StudioTab::privacy);
    EXPECT_FALSE(has(QStringLiteral("muteStatus")));
    machine.smartMute.isSmartMuted.set(true);
    EXPECT_THAT(texts(QStringLiteral("muteStatus")),
                ElementsAre(QStringLiteral("Mute Active: Audio stream currently silenced.")));
    machine.smartMute.smartMuteReason.set("Microphone in use");
    EXPECT_THAT(texts(QStringLiteral("muteStatus")), ElementsAre(QStringLiteral("Microphone in use")));
    machine.smartMute.isSmartMuted.set(false);
    EXPECT_FALSE(has(QStringLiteral("muteStatus")));
}

TEST_F(StudioViewTest, LightsOneCapAndShrinksRowsToTheirRoom)
{
    open(StudioTab::stage);
    QQuickItem* board = item(QStringLiteral("board"));
    const auto lit = [board] {
        std::vector<std::string> labels;
        const std::function<void(const QQuickItem&)> visit = [&](const QQuickItem& part) {
            if (part.property("isActive").toBool()) {
                labels.push_back(part.objectName().toStdString());
            }
            for (const QQuickItem* child : part.childItems()) {
                visit(*child);
            }
        };
        visit(*board);
        return labels;
    };
    for (const auto& [code, cap] :
         std::vector<std::pair<int, std::string>>{{49, "SPACE"}, {0, "A"}, {54, "⌘"}}) {
        machine.monitor.activeKeyCode.set(static_cast<std::uint16_t>(code));
        EXPECT_THAT(lit(), ElementsAre(cap));
    }
    machine.monitor.activeKeyCode.set(123); // an arrow has no cap
    EXPECT_THAT(lit(), ElementsAre());
    machine.monitor.activeKeyCode.set(std::nullopt);

    const double factor = board->property("factor").toDouble();
    const QQuickItem* space = item(QStringLiteral("SPACE"));
    EXPECT_NEAR(space->width(), 110 * factor, 0.01);
    board->setWidth(0.5 * board->width());
    settle();
    const double room = board->width() / factor - 12;
    EXPECT_NEAR(space->width(), 5.5 * (room - 12.5) / 11.4 * factor, 0.01);
}

TEST_F(StudioViewTest, KeepsTheTestPadAndCountsItsKeys)
{
    open(StudioTab::stage);
    EXPECT_EQ(text("activeSwitch"), QStringLiteral("Holy Panda"));
    click(QStringLiteral("testPad"));
    type(QStringLiteral("hi"));
    EXPECT_EQ(model.stage()->testTypingText(), QStringLiteral("hi"));
    open(StudioTab::telemetry);
    machine.monitor.keystrokeCount.set(1234567);
    EXPECT_EQ(property(QStringLiteral("keystrokes"), "value").toString(), QStringLiteral("1234567"));
    open(StudioTab::stage);
    EXPECT_EQ(text("testPad"), QStringLiteral("hi"));
}

TEST_F(StudioViewTest, OffersTheMenuToTheKeyboardAndGivesTheFocusBack)
{
    click(QStringLiteral("search"));
    const QQuickItem* field = window.activeFocusItem();
    key(Qt::Key_F10);
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    EXPECT_EQ(model.mainMenu()->openMenu(), 2);
    key(Qt::Key_Down); // past Undo, which is disabled
    EXPECT_TRUE(property(QStringLiteral("menuItem1"), "current").toBool());
    key(Qt::Key_Return);
    EXPECT_EQ(model.mainMenu()->openMenu(), -1);
    EXPECT_EQ(window.activeFocusItem(), field);
    EXPECT_THAT(target.performed, ElementsAre("redo:"));

    click(QStringLiteral("menu3"));
    EXPECT_TRUE(property(QStringLiteral("menuItem0"), "isChecked").toBool());
    EXPECT_EQ(property(QStringLiteral("menuItem0"), "shortcut").toString(), QStringLiteral("Ctrl+Super+N"));
    key(Qt::Key_Escape);
    EXPECT_EQ(model.mainMenu()->openMenu(), -1);
    EXPECT_EQ(target.performed.size(), 1U);

    machine.host.mainMenu().showByDesktop(true);
    EXPECT_FALSE(has(QStringLiteral("menu0")));
    key(Qt::Key_F10);
    EXPECT_EQ(model.mainMenu()->openMenu(), -1);
}

TEST_F(StudioViewTest, ReachesEveryControlByTabAndNamesIt)
{
    struct Row {
        StudioTab tab;
        QSize size;
        std::vector<const char*> controls;
    };

    const std::vector<Row> rows{
        {StudioTab::showroom,
         {880, 600},
         {"hideSidebar", "tab0", "notchHUD", "filter", "audition Holy Panda", "audition Pack 1"}},
        {StudioTab::acoustics,
         {880, 600},
         {"volume", "preset0", "preset3", "presenceEQ", "upstroke", "spatialAudio", "haptics", "lube",
          "deskSurface", "mouseAudio", "mouseProfile", "scrollRatchet", "notchHUD", "underglow",
          "underglowTheme"}},
        {StudioTab::privacy, {960, 650}, {"autoMuteOnCalls", "muteOnSensitiveApps"}},
        {StudioTab::settings, {960, 650}, {"launchAtLogin", "openPacks"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.tab);
        window.resize(row.size);
        window.contentItem()->setSize(row.size);
        open(row.tab);
        const QStringList reached = traversal();
        for (const char* control : row.controls) {
            EXPECT_TRUE(reached.contains(QLatin1String(control)))
                << control << " is not among " << qPrintable(reached.join(QStringLiteral(", ")));
        }
        EXPECT_THAT(unnamedControls(), ElementsAre());
    }
}

} // namespace
} // namespace tocca::ui

#include "App/MainMenuTable.h"
#include "UI/MenuDouble.h"
#include "UI/Studio/MainWindowViewModel.h"
#include "UI/ViewTest.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

namespace tocca::ui {
namespace {

using testing::ElementsAre;

class StudioViewTest : public ViewTest {
protected:
    StudioViewTest()
    {
        machine.host.mainMenu().install(app::mainMenuTable(), target);
        machine.host.settle(); // the first look for packs finds none
        setPacks(1);
        show("Studio/MainWindowView.qml", model, QSize(960, 650));
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

    /// The titles of the cards, and a star behind the active one.
    [[nodiscard]] std::string cards()
    {
        std::string titles;
        for (int i = 0; has(QStringLiteral("card%1").arg(i)); ++i) {
            const QString card = QStringLiteral("card%1").arg(i);
            titles += (i == 0 ? "" : ", ") + property(card, "title").toString().toStdString() +
                      (texts(card).contains("ACTIVE") ? "*" : "");
        }
        return titles;
    }

    MenuDouble target;
    MainWindowViewModel model{machine.all};
};

TEST_F(StudioViewTest, ChoosesThePageByClickAndByArrows)
{
    EXPECT_EQ(texts("tabs").size(), 6);
    click("tab3");
    EXPECT_EQ(model.selectedTab(), StudioTab::privacy);
    EXPECT_TRUE(has("autoMuteOnCalls"));

    focus("tabs");
    key(Qt::Key_Down);
    EXPECT_EQ(model.selectedTab(), StudioTab::telemetry);
    EXPECT_FALSE(has("autoMuteOnCalls"));
    key(Qt::Key_End);
    key(Qt::Key_Down);
    EXPECT_EQ(model.selectedTab(), StudioTab::settings);
    key(Qt::Key_Home);
    key(Qt::Key_Up);
    EXPECT_EQ(model.selectedTab(), StudioTab::showroom);
}

TEST_F(StudioViewTest, HidesTheSidebarAndShowsItAgain)
{
    click("hideSidebar");
    EXPECT_FALSE(has("tabs"));
    click("showSidebar");
    EXPECT_TRUE(has("tabs") && !has("showSidebar"));
    key(Qt::Key_S, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_FALSE(has("tabs"));
}

TEST_F(StudioViewTest, MarksTheCardOfTheSoundThatPlays)
{
    EXPECT_EQ(cards(), "Holy Panda*, Cherry MX Blue, Cherry MX Brown, NK Cream, Typewriter, Pack 1");
    click("audition Pack 1");
    EXPECT_EQ(cards(), "Holy Panda, Cherry MX Blue, Cherry MX Brown, NK Cream, Typewriter, Pack 1*");
    machine.engine.currentSwitchType.set(audio::SwitchType::typewriter);
    EXPECT_EQ(cards(), "Holy Panda, Cherry MX Blue, Cherry MX Brown, NK Cream, Typewriter, Pack 1*");
    focus("audition NK Cream");
    key(Qt::Key_Space);
    EXPECT_EQ(cards(), "Holy Panda, Cherry MX Blue, Cherry MX Brown, NK Cream*, Typewriter, Pack 1");
    EXPECT_FALSE(machine.engine.selectedCustomPack.get());
}

TEST_F(StudioViewTest, TurnsPagesAndSearches)
{
    setPacks(8);
    EXPECT_FALSE(property("previous", "enabled").toBool());
    click("next");
    click("next");
    EXPECT_EQ(cards(), "Pack 8");
    EXPECT_FALSE(property("next", "enabled").toBool());
    EXPECT_THAT(texts("pagination"),
                ElementsAre("PREV", "3", "OF 3", "NEXT", "SHOWING 13–13 OF 13 SWITCHES (6 PER PAGE)"));

    click("search");
    type("THOCK");
    EXPECT_EQ(model.showroom()->searchText(), "THOCK");
    EXPECT_EQ(cards(), "Holy Panda*");
    type("x");
    EXPECT_EQ(cards(), "");
    model.showroom()->search({});

    click("filter");
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(cards(), "Holy Panda*, Cherry MX Brown");
}

TEST_F(StudioViewTest, SwitchesShowTheirSettingAndAskForTheOpposite)
{
    open(StudioTab::acoustics);
    expectSwitches({{"presenceEQ", machine.engine.isPresenceEQEnabled},
                    {"upstroke", machine.engine.playUpstroke},
                    {"spatialAudio", machine.engine.isSpatialAudioEnabled},
                    {"haptics", machine.engine.isHapticsEnabled},
                    {"mouseAudio", machine.engine.isMouseAudioEnabled},
                    {"scrollRatchet", machine.engine.isScrollRatchetEnabled},
                    {"notchHUD", machine.notchHUD.isEnabled},
                    {"underglow", machine.underglow.isEnabled}});
    open(StudioTab::privacy);
    expectSwitches({{"autoMuteOnCalls", machine.smartMute.autoMuteOnCalls},
                    {"muteOnSensitiveApps", machine.smartMute.muteOnSensitiveApps}});
    open(StudioTab::settings);
    expectSwitches({{"launchAtLogin", machine.launchAtLogin.isEnabled}});
    open(StudioTab::showroom);
    EXPECT_EQ(text("notchHUD"), "NOTCH HUD: ON");
    click("notchHUD");
    EXPECT_FALSE(machine.notchHUD.isEnabled.get());
}

TEST_F(StudioViewTest, LeavesTheBoxEmptyWhenTheDesktopRefusesTheLoginItem)
{
    machine.host.loginItem().refusal = "no";
    open(StudioTab::settings);
    click("launchAtLogin");
    machine.host.settle();
    EXPECT_FALSE(property("launchAtLogin", "checked").toBool());
    click("openPacks");
    ASSERT_EQ(machine.host.workspace().openedUrls.size(), 1U);
    EXPECT_EQ(machine.host.workspace().openedUrls.front(),
              "file://" + machine.loader.customPacksDirectory().string());
    EXPECT_EQ(text("packsPath").toStdString(), machine.loader.customPacksDirectory().string());
}

TEST_F(StudioViewTest, SetsLevelsAndChoices)
{
    open(StudioTab::acoustics);
    click("preset1");
    EXPECT_FLOAT_EQ(machine.engine.volume.get(), 0.5F);
    EXPECT_TRUE(property("preset1", "on").toBool());
    focus("volume");
    key(Qt::Key_PageUp);
    EXPECT_NEAR(machine.engine.volume.get(), 0.6, 1e-6);
    EXPECT_FALSE(property("preset1", "on").toBool());
    focus("lube");
    key(Qt::Key_End);
    EXPECT_EQ(text("lubeReading"), "100% Lubed");

    focus("deskSurface");
    key(Qt::Key_Right);
    EXPECT_EQ(machine.engine.deskSurface.get(), audio::AcousticDeskSurface::hardwoodDesk);
    EXPECT_EQ(text("deskSurfaceLine"), "Snappy acoustic bounce with crisp transients");
    focus("mouseProfile");
    key(Qt::Key_Down);
    EXPECT_EQ(machine.engine.mouseProfile.get(), audio::MouseSwitchProfile::omron50M);
    EXPECT_EQ(text("mouseProfileLine"), "Light, responsive classic office snap");
    focus("underglowTheme");
    key(Qt::Key_Right);
    EXPECT_EQ(machine.underglow.currentTheme.get(), UnderglowTheme::cyberpunk);
}

TEST_F(StudioViewTest, SaysWhetherTheSessionIsHeardAndWhyThereIsSilence)
{
    machine.monitor.hasAccessibilityPermission.set(false);
    EXPECT_THAT(texts("status"), ElementsAre("PERMISSION PENDING"));
    machine.monitor.hasAccessibilityPermission.set(true);
    EXPECT_THAT(texts("status"), ElementsAre("GLOBAL HOOK ACTIVE"));

    open(StudioTab::privacy);
    EXPECT_FALSE(has("muteStatus"));
    machine.smartMute.isSmartMuted.set(true);
    EXPECT_THAT(texts("muteStatus"), ElementsAre("Mute Active: Audio stream currently silenced."));
    machine.smartMute.smartMuteReason.set("Microphone in use");
    EXPECT_THAT(texts("muteStatus"), ElementsAre("Microphone in use"));
}

TEST_F(StudioViewTest, ChoicesThatThereAreNotChangeNothing)
{
    for (const int index : {-1, 99}) {
        model.selectTab(index);
        model.showroom()->chooseFilter(index);
        model.showroom()->select(index);
        model.mainMenu()->open(index);
        model.mainMenu()->perform(index);
    }
    EXPECT_EQ(model.selectedTab(), StudioTab::showroom);
    EXPECT_EQ(model.showroom()->filterIndex(), 0);
    EXPECT_EQ(model.mainMenu()->openMenu(), -1);
    EXPECT_EQ(cards(), "Holy Panda*, Cherry MX Blue, Cherry MX Brown, NK Cream, Typewriter, Pack 1");
}

TEST_F(StudioViewTest, LightsOneCap)
{
    open(StudioTab::stage);
    QQuickItem* board = item("board");
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
}

TEST_F(StudioViewTest, KeepsTheTestPadAndCountsItsKeys)
{
    open(StudioTab::stage);
    EXPECT_EQ(text("activeSwitch"), "Holy Panda");
    click("testPad");
    type("hi");
    EXPECT_EQ(model.stage()->testTypingText(), "hi");
    open(StudioTab::telemetry);
    machine.monitor.keystrokeCount.set(1234567);
    EXPECT_EQ(property("keystrokes", "value").toString(), "1234567");
    open(StudioTab::stage);
    EXPECT_EQ(text("testPad"), "hi");
}

TEST_F(StudioViewTest, OffersTheMenuToTheKeyboardAndGivesTheFocusBack)
{
    click("search");
    const QQuickItem* field = window.activeFocusItem();
    key(Qt::Key_F10);
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    EXPECT_EQ(model.mainMenu()->openMenu(), 2);
    key(Qt::Key_Down); // past Undo, which is disabled
    EXPECT_TRUE(property("menuItem1", "current").toBool());
    key(Qt::Key_Return);
    EXPECT_EQ(model.mainMenu()->openMenu(), -1);
    EXPECT_EQ(window.activeFocusItem(), field);
    EXPECT_THAT(target.performed, ElementsAre("redo:"));

    click("menu3");
    EXPECT_TRUE(property("menuItem0", "isChecked").toBool());
    EXPECT_EQ(property("menuItem0", "shortcut").toString(), "Ctrl+Super+N");
    key(Qt::Key_Escape);
    EXPECT_EQ(model.mainMenu()->openMenu(), -1);
    EXPECT_EQ(target.performed.size(), 1U);

    machine.host.mainMenu().showByDesktop(true);
    EXPECT_FALSE(has("menu0"));
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
         {"hideSidebar", "tab0", "menu0", "notchHUD", "filter", "audition Holy Panda", "audition Pack 1"}},
        {StudioTab::acoustics,
         {880, 600},
         {"volume", "preset0", "preset3", "presenceEQ", "upstroke", "spatialAudio", "haptics", "lube",
          "4mm Felt Deskmat (Thock)", "mouseAudio", "mouseProfile", "scrollRatchet", "notchHUD", "underglow",
          "Studio Amber"}},
        {StudioTab::privacy, {960, 650}, {"autoMuteOnCalls", "muteOnSensitiveApps"}},
        {StudioTab::settings, {960, 650}, {"launchAtLogin", "Soundpacks Directory", "openPacks"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.tab);
        window.resize(row.size);
        window.contentItem()->setSize(row.size);
        open(row.tab);
        const QStringList reached = traversal();
        for (const char* control : row.controls) {
            EXPECT_TRUE(reached.contains(QLatin1String(control)))
                << control << " is not among " << qPrintable(reached.join(", "));
        }
        EXPECT_THAT(unnamedControls(), ElementsAre());
    }
}

} // namespace
} // namespace tocca::ui

#include "UI/Popover/MenuBarViewModel.h"
#include "UI/ViewTest.h"

#include <QTest>

#include <gmock/gmock.h>

#include <algorithm>

namespace tocca::ui {
namespace {

using testing::ElementsAre;

constexpr QSize kSize(360, 560);

class MenuBarViewTest : public ViewTest {
protected:
    void open() { show(QStringLiteral("Popover/MenuBarView.qml"), model, kSize); }

    void addPacks(int count)
    {
        for (int i = 1; i <= count; ++i) {
            const auto folder = machine.loader.customPacksDirectory() / ("Pack " + std::to_string(i));
            machine.host.files().write(folder / "press.wav", "press");
        }
        refreshPacks();
    }

    void refreshPacks()
    {
        machine.loader.refreshCustomPacks();
        machine.host.settle();
        settle();
    }

    MenuBarViewModel model{machine.all, [this] { ++windowsShown; }, [this] { ++terminations; }};
    int windowsShown = 0;
    int terminations = 0;
};

TEST_F(MenuBarViewTest, SwitchesShowTheirSettingAndAskForTheOpposite)
{
    open();
    expectSwitches({{"isEnabled", machine.engine.isEnabled},
                    {"autoMuteOnCalls", machine.smartMute.autoMuteOnCalls},
                    {"muteOnSensitiveApps", machine.smartMute.muteOnSensitiveApps},
                    {"isSpatialAudioEnabled", machine.engine.isSpatialAudioEnabled},
                    {"isHapticsEnabled", machine.engine.isHapticsEnabled},
                    {"isBurstDynamicsEnabled", machine.engine.isBurstDynamicsEnabled},
                    {"isNotchHUDEnabled", machine.notchHUD.isEnabled},
                    {"isUnderglowEnabled", machine.underglow.isEnabled},
                    {"isMouseAudioEnabled", machine.engine.isMouseAudioEnabled},
                    {"isScrollRatchetEnabled", machine.engine.isScrollRatchetEnabled},
                    {"isPresenceEQEnabled", machine.engine.isPresenceEQEnabled},
                    {"playsUpstroke", machine.engine.playUpstroke},
                    {"launchesAtLogin", machine.launchAtLogin.isEnabled}});
}

TEST_F(MenuBarViewTest, ARefusedChangeDoesNotStayOnScreen)
{
    open();
    machine.host.loginItem().refusal = "Read-only file system";
    click("launchesAtLogin");
    EXPECT_FALSE(property("launchesAtLogin", "checked").toBool());
}

TEST_F(MenuBarViewTest, LevelsFollowPointerKeysAndModel)
{
    open();
    click("lubeLevel");
    EXPECT_NEAR(machine.engine.lubeLevel.get(), 0.5, 0.01);

    struct Key {
        Qt::Key key;
        double level;
    };

    focus("volume");
    for (const Key& step : {Key{Qt::Key_Home, 0}, Key{Qt::Key_Left, 0}, Key{Qt::Key_PageUp, 0.1},
                            Key{Qt::Key_Right, 0.11}, Key{Qt::Key_Up, 0.12}, Key{Qt::Key_Down, 0.11},
                            Key{Qt::Key_PageDown, 0.01}, Key{Qt::Key_End, 1}, Key{Qt::Key_Right, 1}}) {
        key(step.key);
        EXPECT_NEAR(machine.engine.volume.get(), step.level, 1e-6);
        EXPECT_NEAR(property("volume", "value").toDouble(), step.level, 1e-6);
    }
    wheel("volume", -2);
    EXPECT_NEAR(machine.engine.volume.get(), 0.98, 1e-6);
    EXPECT_EQ(text("volumeReading"), "98%");

    for (const auto& [level, reading] : {std::pair{0.05F, "Factory Dry"}, std::pair{0.5F, "50% Lubed"}}) {
        machine.engine.lubeLevel.set(level);
        EXPECT_EQ(text("lubeReading"), reading);
    }
}

TEST_F(MenuBarViewTest, PickersChooseByMenuAndArrowKeys)
{
    open();
    focus("deskSurface");
    key(Qt::Key_Return);
    key(Qt::Key_Down);
    key(Qt::Key_Escape);
    EXPECT_EQ(machine.engine.deskSurface.get(), audio::AcousticDeskSurface::feltDeskmat) << "not chosen yet";
    key(Qt::Key_Return);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(machine.engine.deskSurface.get(), audio::AcousticDeskSurface::hardwoodDesk);
    EXPECT_EQ(text("deskSurfaceDescription").toStdString(), machine.engine.deskSurface.get().description());

    key(Qt::Key_Return);
    window.hide();
    window.show();
    settle();
    EXPECT_FALSE(property("deskSurface", "opened").toBool()) << "a menu does not outlast its window";

    focus("mouseProfile");
    key(Qt::Key_Down);
    EXPECT_EQ(machine.engine.mouseProfile.get(), audio::MouseSwitchProfile::omron50M);
    focus("underglowTheme");
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(machine.underglow.currentTheme.get(), UnderglowTheme::polarWhite);
    machine.underglow.currentTheme.set(UnderglowTheme::cyberpunk);
    EXPECT_EQ(property("underglowTheme", "currentIndex").toInt(), 1);
}

TEST_F(MenuBarViewTest, SectionsComeAndGoWithTheirReason)
{
    open();
    machine.host.settle();
    EXPECT_FALSE(has("smartMutedCard"));
    EXPECT_FALSE(has("permissionCard"));
    EXPECT_FALSE(has("communityLibrary"));
    EXPECT_TRUE(has("soundstage"));
    EXPECT_EQ(text("hookStatus"), "System Hook Active");

    machine.smartMute.isSmartMuted.set(true);
    machine.smartMute.smartMuteReason.set("Active in Zoom");
    EXPECT_THAT(texts("smartMutedCard"), ElementsAre("Smart Mute Active", "Active in Zoom"));
    machine.smartMute.smartMuteReason.set(std::nullopt);
    EXPECT_THAT(texts("smartMutedCard"), ElementsAre("Smart Mute Active"));

    machine.monitor.hasAccessibilityPermission.set(false);
    EXPECT_EQ(text("hookStatus"), "In-App Only (Awaiting Permission)");
    EXPECT_TRUE(has("permissionCard"));

    machine.engine.isSpatialAudioEnabled.set(false);
    machine.engine.isMouseAudioEnabled.set(false);
    machine.underglow.isEnabled.set(false);
    EXPECT_FALSE(has("soundstage"));
    EXPECT_FALSE(has("mouseProfile"));
    EXPECT_FALSE(has("underglowTheme"));
}

TEST_F(MenuBarViewTest, PagesThroughNinePacks)
{
    open();
    addPacks(9);
    EXPECT_EQ(text("communityPosition"), "1/3");
    EXPECT_FALSE(property("previousPage", "enabled").toBool());
    click("nextPage");
    click("nextPage");
    EXPECT_EQ(text("communityPosition"), "3/3");
    EXPECT_TRUE(has("communityPack0"));
    EXPECT_FALSE(has("communityPack1"));
    EXPECT_FALSE(property("nextPage", "enabled").toBool());

    click("communityPack0");
    EXPECT_EQ(machine.engine.selectedCustomPack.get()->name, "Pack 9");
    EXPECT_TRUE(property("communityPack0", "isSelected").toBool());
    EXPECT_FALSE(property("builtInPack0", "isSelected").toBool());
    click("builtInPack3");
    EXPECT_EQ(machine.engine.selectedCustomPack.get(), std::nullopt);
    EXPECT_EQ(machine.engine.currentSwitchType.get(), audio::SwitchType::nkCream);

    for (int i = 3; i <= 9; ++i) {
        EXPECT_TRUE(machine.host.fileStore().removeTree(machine.loader.customPacksDirectory() /
                                                        ("Pack " + std::to_string(i))));
    }
    refreshPacks();
    EXPECT_EQ(text("communityPosition"), "1/1");
    EXPECT_TRUE(has("communityPack1"));
}

TEST_F(MenuBarViewTest, ButtonsDoWhatTheySay)
{
    open();
    click("openStudio");
    click("openTocca");
    EXPECT_EQ(windowsShown, 2);
    click("quit");
    EXPECT_EQ(terminations, 1);

    const auto heard = [this] {
        machine.host.advance(0.1);
        return machine.host.audioPlayers().sounds().size();
    };
    const std::size_t before = heard();
    for (const char* name : {"quickLeft", "quickSpacebar", "quickRight"}) {
        click(name);
    }
    EXPECT_EQ(heard(), before + 3);
    click("quickHUD");
    EXPECT_TRUE(machine.notchHUD.isEnabled.get());
    EXPECT_EQ(text("quickHUD"), "HUD: ON");

    click("import");
    machine.host.files().write("/downloads/Alps/press.wav", "press");
    key(Qt::Key_Home);
    settle();
    EXPECT_FALSE(has("importProgress"));
    machine.host.openPanels().answer("/downloads/Alps");
    EXPECT_EQ(text("importActivity"), "Importing “Alps”…");
    settle();
    click("cancelImport");
    machine.host.settle();
    EXPECT_EQ(text("importMessage"), "Failed to import: cancelled");
    EXPECT_FALSE(has("importProgress"));

    click("import");
    machine.host.openPanels().answer("/downloads/Alps");
    machine.host.settle();
    EXPECT_EQ(text("importMessage"), "Imported 'Alps'!");
    settle();
    const QQuickItem& result = *item("importMessage");
    EXPECT_TRUE(QRectF(QPointF(), window.size()).contains(result.mapRectToScene(result.boundingRect())))
        << "brought into sight";

    click("testInput");
    type("abc");
    EXPECT_EQ(property("testInput", "text").toString(), "abc");
}

TEST_F(MenuBarViewTest, TakesWhatIsDroppedByThePathThatItsAddressNames)
{
    struct Row {
        const char* url;
        const char* folder; // null where there is none
    };

    for (const Row& row : {
             Row{"file:///drops/Alps", "/drops/Alps"},
             Row{"FILE:/drops/Buckling", "/drops/Buckling"},
             Row{"file://localhost/drops/Clicky", "/drops/Clicky"},
             Row{"file:///drops/50%25%20B%C3%BCckling%23?query#part", "/drops/50% B\xC3\xBC"
                                                                      "ckling#"},
             Row{"file:///drops/not%FFtext", "/drops/not\xFFtext"},
             Row{"file://server/drops/Alps", nullptr},
             Row{"file:drops/Alps", nullptr},
             Row{"file:///drops/Alps%00", nullptr},
             Row{"https://example.org/drops/Alps", nullptr},
             Row{"", nullptr},
         }) {
        SCOPED_TRACE(row.url);
        machine.host.files().write(
            (row.folder != nullptr ? std::string(row.folder) : "/drops/Alps") + "/press.wav", "press");
        EXPECT_EQ(model.handleDrop({QUrl::fromEncoded(row.url)}), row.folder != nullptr);
        machine.host.settle();
        if (row.folder != nullptr) {
            const auto& packs = machine.loader.availableCustomPacks.get();
            EXPECT_TRUE(std::any_of(packs.begin(), packs.end(), [&](const audio::SoundPackInfo& pack) {
                return pack.folderURL.filename() == std::filesystem::path(row.folder).filename();
            }));
        }
    }
}

TEST_F(MenuBarViewTest, ChoicesThatThereAreNotChangeNothing)
{
    for (const int index : {-1, 99}) {
        model.chooseBuiltInPack(index);
        model.chooseCommunityPack(index);
        model.settings()->chooseDeskSurface(index);
        model.settings()->chooseMouseProfile(index);
        model.settings()->chooseUnderglowTheme(index);
        model.settings()->choosePreset(index);
    }
    EXPECT_EQ(machine.engine.currentSwitchType.get(), audio::SwitchType::holyPanda);
    EXPECT_EQ(machine.engine.selectedCustomPack.get(), std::nullopt);
    EXPECT_EQ(machine.engine.deskSurface.get(), audio::AcousticDeskSurface::feltDeskmat);
    EXPECT_EQ(machine.engine.volume.get(), 1.0F);
    machine.host.settle();
    EXPECT_EQ(machine.host.audioPlayers().sounds().size(), 0U);
}

TEST_F(MenuBarViewTest, EachShowingAsksAgainWhatMayHaveChanged)
{
    machine.host.trustQuery().isGranted = false;
    open();
    machine.host.settle();
    window.hide();
    machine.host.trustQuery().isGranted = true;
    machine.host.loginItem().currentStatus = platform::LoginItemStatus::Enabled;
    machine.host.files().write(machine.loader.customPacksDirectory() / "By hand/press.wav", "press");
    window.show();
    settle();
    machine.host.settle();
    EXPECT_TRUE(model.status()->hasAccessibilityPermission());
    EXPECT_TRUE(model.settings()->launchesAtLogin());
    EXPECT_TRUE(model.hasCommunityLibrary());
}

TEST_F(MenuBarViewTest, TheKeyboardReachesEveryControlAndEachHasAName)
{
    open();
    addPacks(5);
    machine.monitor.hasAccessibilityPermission.set(false);
    settle();
    QStringList reached = traversal();
    const QStringList expected =
        QString::fromLatin1(
            "isEnabled,openStudio,quickLeft,quickSpacebar,quickRight,quickHUD,openSettings,"
            "checkAgain,import,builtInPack0,nextPage,communityPack0,"
            "autoMuteOnCalls,muteOnSensitiveApps,isSpatialAudioEnabled,isHapticsEnabled,"
            "isBurstDynamicsEnabled,isNotchHUDEnabled,isUnderglowEnabled,underglowTheme,lubeLevel,"
            "deskSurface,isMouseAudioEnabled,mouseProfile,isScrollRatchetEnabled,volume,"
            "isPresenceEQEnabled,playsUpstroke,TEST TYPING PAD,openTocca,launchesAtLogin,quit")
            .split(',');
    reached.removeIf([&](const QString& name) { return !expected.contains(name); });
    EXPECT_EQ(reached, expected);
    EXPECT_EQ(unnamedControls(), QStringList());
}

} // namespace
} // namespace tocca::ui

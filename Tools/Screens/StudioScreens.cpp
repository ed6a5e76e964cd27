#include "StudioScreens.h"

#include "App/MainMenuTable.h"
#include "Instruments/ControllersOnMemory.h"
#include "Screen.h"
#include "UI/Studio/MainWindowViewModel.h"

#include <array>
#include <string>
#include <vector>

namespace tocca::ui {
namespace {

const QString kView = QStringLiteral("Studio/MainWindowView.qml");
constexpr QSize kUsual(960, 650);
constexpr auto kSizes = std::to_array<QSize>({kUsual, {880, 600}, {1920, 1080}});
constexpr auto kPages =
    std::to_array<const char*>({"showroom", "acoustics", "stage", "privacy", "telemetry", "settings"});

audio::SoundPackInfo pack(const std::string& name, const std::string& description)
{
    return {.id = "custom_" + name,
            .name = name,
            .description = description,
            .folderURL = "/home/ann/.local/share/Tocca/CustomPacks/" + name};
}

class Target final : public platform::MenuTarget {
public:
    bool performMenuAction(std::string_view /*action*/) override { return true; }

    platform::MenuItemState validateMenuItem(const platform::MenuItem& item) override
    {
        return {.isEnabled = item.action != "redo:", .isChecked = item.action == app::kToggleNotchHUD};
    }
};

/// A window with a few packs and a menu.
struct Studio {
    Studio(const QString& directory, const QString& suffix)
        : screen(directory, suffix)
    {
        machine.host.mainMenu().install(app::mainMenuTable(), target);
        machine.host.settle();
        setPacks(7);
        screen.show(kView, model, kUsual);
    }

    void setPacks(int count)
    {
        std::vector<audio::SoundPackInfo> packs{
            pack("Alps SKCM Salmon", "Custom Soundpack • Community switch"),
            pack("Topre Realforce 87u – lubed, silenced, recorded on a kitchen table at midnight",
                 "Forty-five gram domes, close microphone, one take for every key, with the room kept as it "
                 "was and "
                 "nothing done about the neighbours"),
            pack("Модель Ф", "Пружины и сталь"),
        };
        for (int i = 4; i <= count; ++i) {
            packs.push_back(
                pack("Community pack " + std::to_string(i), "Custom Soundpack • Community switch"));
        }
        machine.loader.availableCustomPacks.set(packs);
    }

    Target target;
    ControllersOnMemory machine;
    MainWindowViewModel model{machine.all};
    Screen screen; // last: its view shows the model
};

void takePages(Studio& studio)
{
    for (const QSize size : kSizes) {
        studio.screen.resize(size);
        for (int tab = 0; tab < static_cast<int>(kPages.size()); ++tab) {
            studio.model.selectTab(tab);
            studio.screen.take(QStringLiteral("studio-%1-%2x%3")
                                   .arg(QLatin1String(kPages.at(static_cast<std::size_t>(tab))))
                                   .arg(size.width())
                                   .arg(size.height()));
        }
    }
    studio.screen.resize(kUsual);
}

void takeLitStage(Studio& studio)
{
    studio.machine.monitor.activeKeyCode.set(49);
    studio.model.selectTab(StudioTab::stage);
    studio.screen.take(QStringLiteral("studio-stage-lit"));
    studio.machine.monitor.activeKeyCode.set(std::nullopt);
}

void takeShowroomStates(Studio& studio)
{
    auto& showroom = *studio.model.showroom();
    studio.model.selectTab(StudioTab::showroom);
    showroom.showNextPage();
    showroom.select(1);
    studio.model.settings()->toggleNotchHUD();
    studio.screen.take(QStringLiteral("studio-showroom-packs"));
    showroom.chooseFilter(1);
    studio.screen.take(QStringLiteral("studio-showroom-filtered"));
    showroom.search(QStringLiteral("nothing like it"));
    studio.screen.take(QStringLiteral("studio-showroom-nothing"));
    showroom.search({});
    showroom.chooseFilter(0);
    studio.setPacks(100);
    studio.screen.take(QStringLiteral("studio-showroom-hundred"));
}

void takeOtherStates(Studio& studio)
{
    auto& machine = studio.machine;
    machine.monitor.hasAccessibilityPermission.set(false);
    machine.smartMute.smartMuteReason.set("Microphone in use");
    machine.smartMute.isSmartMuted.set(true);
    studio.model.selectTab(StudioTab::privacy);
    studio.screen.take(QStringLiteral("studio-privacy-muted"));
    machine.monitor.keystrokeCount.set(12'345'678'901);
    studio.screen.press(Qt::Key_S, Qt::ControlModifier | Qt::AltModifier);
    studio.model.selectTab(StudioTab::telemetry);
    studio.screen.take(QStringLiteral("studio-collapsed"));
    studio.model.selectTab(StudioTab::acoustics);
    for (int i = 0; i < 4; ++i) {
        studio.screen.press(Qt::Key_Tab);
    }
    studio.screen.take(QStringLiteral("studio-focus"));
    studio.screen.press(Qt::Key_F10);
    studio.screen.press(Qt::Key_Right);
    studio.screen.press(Qt::Key_Right);
    studio.screen.press(Qt::Key_Down);
    studio.screen.take(QStringLiteral("studio-menu"));
}

} // namespace

void takeStudioScreens(const QString& directory, const QString& suffix)
{
    Studio studio(directory, suffix);
    takePages(studio);
    takeLitStage(studio);
    takeShowroomStates(studio);
    takeOtherStates(studio);
}

} // namespace tocca::ui

#include "PopoverScreens.h"

#include "Instruments/ControllersOnMemory.h"
#include "Screen.h"
#include "UI/Popover/MenuBarViewModel.h"

#include <array>
#include <functional>
#include <string>

namespace tocca::ui {
namespace {

void addPack(ControllersOnMemory& machine, const std::string& folder, const std::string& manifest)
{
    const auto path = machine.loader.customPacksDirectory() / folder;
    machine.host.files().write(path / "press.wav", "press");
    machine.host.files().write(path / "config.json", manifest);
}

void addNinePacks(ControllersOnMemory& machine)
{
    constexpr std::array kPacks{
        R"({"name":"Alps SKCM Blue","description":"Clicky • Salvaged from a 1988 terminal board"})",
        R"({"name":"Buckling Spring","description":"Clicky • Model M, steel plate, office desk"})",
        R"({"name":"Gateron Oil King","description":"Linear • Factory lubed, gasket mount"})",
        R"({"name":"The Extraordinarily Long Named Topre Realforce Silent Purple Edition","description":"Tactile • A description that runs on and on about domes, springs, sliders, housings and the weather of that day"})",
        R"({"name":"Kailh Box White"})",
        R"({"name":"Marquardt Butterfly"})",
        R"({"name":"NovelKeys Sherbet"})",
        R"({"name":"Topre 45g"})",
        R"({"name":"Zealios V2"})",
    };
    for (std::size_t i = 0; i < kPacks.size(); ++i) {
        addPack(machine, std::to_string(i), kPacks.at(i));
    }
    machine.loader.refreshCustomPacks();
    machine.host.settle();
}

/// The popover from top to bottom, a window at a time.
void takePopover(const QString& directory, const QString& suffix, const QString& name,
                 const std::function<void(ControllersOnMemory&)>& prepare)
{
    ControllersOnMemory machine;
    prepare(machine);
    MenuBarViewModel model(
        machine.all, [] {}, [] {});
    Screen screen(directory, suffix);
    screen.show(QStringLiteral("Popover/MenuBarView.qml"), model, QSize(360, 560));
    machine.host.settle();
    machine.engine.lastActiveKeyPan.set(-0.4F);
    machine.engine.keyVisualizerTrigger.set(1);
    screen.take(name + QStringLiteral("-top"));
    screen.press(Qt::Key_PageDown);
    screen.take(name + QStringLiteral("-middle"));
    screen.press(Qt::Key_PageDown);
    screen.take(name + QStringLiteral("-lower"));
    screen.press(Qt::Key_End);
    screen.take(name + QStringLiteral("-bottom"));
}

/// The keyboard's focus on each kind of control, and an open menu.
void takeFocus(const QString& directory, const QString& suffix)
{
    ControllersOnMemory machine;
    MenuBarViewModel model(
        machine.all, [] {}, [] {});
    Screen screen(directory, suffix);
    screen.show(QStringLiteral("Popover/MenuBarView.qml"), model, QSize(360, 560));
    machine.host.settle();
    for (int i = 0; i < 3; ++i) {
        screen.press(Qt::Key_Tab);
    }
    screen.take(QStringLiteral("popover-focus-button"));
    constexpr int kToPicker = 17;
    for (int i = 0; i < kToPicker; ++i) {
        screen.press(Qt::Key_Tab);
    }
    screen.take(QStringLiteral("popover-focus-control"));
    screen.press(Qt::Key_Return);
    screen.press(Qt::Key_Down);
    screen.take(QStringLiteral("popover-menu"));
}

} // namespace

void takePopoverScreens(const QString& directory, const QString& suffix)
{
    takePopover(directory, suffix, QStringLiteral("popover"), [](ControllersOnMemory& machine) {
        machine.engine.lubeLevel.set(0.42F);
        machine.monitor.keystrokeCount.set(12840);
    });
    takePopover(directory, suffix, QStringLiteral("popover-full"), [](ControllersOnMemory& machine) {
        machine.host.trustQuery().isGranted = false;
        machine.host.audioDevices().startCapture("headset");
        machine.host.advance(2);
        machine.notchHUD.isEnabled.set(true);
        addNinePacks(machine);
    });
    takeFocus(directory, suffix);
}

} // namespace tocca::ui

#include "App/AppDelegate.h"
#include "Keyboard/KeyboardMonitor.h"
#include "Platform/Linux/Audio/LinuxAudioOutput.h"
#include "Platform/Linux/Freedesktop/MotionPreference.h"
#include "Platform/Linux/LinuxHost.h"
#include "Platform/Linux/Qt/DisplayChoice.h"
#include "Platform/Linux/Qt/LateScreenReaders.h"
#include "Platform/Linux/Qt/RendererChoice.h"
#include "Platform/Linux/Qt/TerminationSignals.h"
#include "Platform/Linux/Qt/Windows/QuickView.h"
#include "Platform/Linux/System/CoreFiles.h"
#include "Player/MixerAudioPlayers.h"
#include "Player/Mixing/Mixer.h"
#include "Support/ThreadRole.h"
#include "UI/Interface.h"

#include <QGuiApplication>
#include <QtQml/QQmlExtensionPlugin>

#include <cstdio>
#include <cstdlib>
#include <string>

Q_IMPORT_QML_PLUGIN(Tocca_UIPlugin)

namespace {

using namespace tocca;

/// The Linux desktop with Tocca's own player, in the order in which the parts need each other.
struct Desktop {
    Desktop(const std::string& display, const QByteArray& launch)
        : system(display, launch)
    {}

    platform::linux::LinuxHost system;
    player::Mixer mixer{system.clock()};
    platform::linux::LinuxAudioOutput output{system.standardOutput(), {.appeal = system.appeal()}};
    player::MixerAudioPlayers players{output, mixer};
    platform::Host host{system.with(players)};
};

ui::ViewFactory viewsOf(ui::Interface& interface)
{
    const auto view = [&interface](QQuickItem* (ui::Interface::*make)(QQuickItem&)) {
        return std::make_unique<platform::linux::QuickView>(
            [&interface, make](QQuickItem& parent) { return (interface.*make)(parent); });
    };
    const auto menuBar = [&interface, view] {
        interface.prepareMenuBar();
        return view(&ui::Interface::makeMenuBarView);
    };
    return {.menuBar = menuBar,
            .mainWindow = [view] { return view(&ui::Interface::makeMainWindowView); },
            .notchHUD = [view] { return view(&ui::Interface::makeNotchHUDView); },
            .underglow = [view] { return view(&ui::Interface::makeUnderglowView); }};
}

} // namespace

int main(int /*argc*/, char** argv)
{
    setThreadRole(ThreadRole::Main);
    platform::linux::forbidCoreFiles();
    platform::linux::LinuxStandardOutput::reserveDescriptors();
    platform::linux::TerminationSignals signals; // before Qt starts a thread that would receive them
    const auto display = platform::linux::chooseDisplay();
    if (!display) {
        constexpr const char* kNoDisplay = "Tocca needs a graphical session: no display answers. Start it "
                                           "from the desktop, or set DISPLAY or WAYLAND_DISPLAY.\n";
        std::fputs(kNoDisplay, stderr);
        return EXIT_FAILURE;
    }
    platform::linux::noticeLateScreenReaders();
    const QByteArray launch = qgetenv("DESKTOP_STARTUP_ID"); // before Qt takes it for itself
    int nameAlone = 1;                                       // the program takes no options, not even Qt's
    const QGuiApplication application(nameAlone, argv);
    signals.attach();
    platform::linux::chooseRenderer();
    // Never deleted: the controllers, what they stand on and what shows them live as long as the process.
    auto& desktop = *new Desktop(*display, launch);
    platform::setDefaultHost(desktop.host);
    if (const auto status = desktop.system.application().statusOfSecondInstance()) {
        return *status;
    }
    auto& interface =
        *new ui::Interface({.showMainWindow = [] { app::AppDelegate::shared()->showMainWindow(); },
                            .terminate = [&] { desktop.host.application.terminate(); }});
    ui::setDefaultViews(viewsOf(interface));
    const platform::linux::MotionPreference motion(QDBusConnection::sessionBus(), [&](bool reducesMotion) {
        interface.setReducesMotion(reducesMotion);
    });
    desktop.output.start(desktop.mixer);

    auto& delegate = *new app::AppDelegate(desktop.host, app::AppDelegate::Collaborators::shared());
    const int status = desktop.host.application.run(delegate);
    keyboard::KeyboardMonitor::shared().stop();
    return status;
}

#include "App/LaunchAtLogin.h"
#include "App/SmartMuteManager.h"
#include "Keyboard/KeyboardMonitor.h"
#include "Platform/Linux/Audio/LinuxAudioOutput.h"
#include "Platform/Linux/LinuxHost.h"
#include "Platform/Linux/Toolkit/TerminationSignals.h"
#include "Player/Mixer.h"
#include "Player/MixerAudioPlayers.h"
#include "Support/ThreadRole.h"

#include <QCoreApplication>

namespace {

using namespace tocca;

/// The parts of the desktop that this build runs on, in the order in which they need each other.
struct Desktop {
    platform::linux::LinuxHost system;
    player::Mixer mixer{system.clock()};
    platform::linux::LinuxAudioOutput output{system.standardOutput(), {.appeal = system.appeal()}};
    player::MixerAudioPlayers players{output, system.clock(), mixer};
    platform::Host host{system.with(players)};
};

} // namespace

int main(int argc, char** argv)
{
    setThreadRole(ThreadRole::Main);
    platform::linux::LinuxStandardOutput::reserveDescriptors();
    QCoreApplication application(argc, argv);
    const platform::linux::TerminationSignals signals;

    // The controllers live as long as the process, and so does what they stand on.
    auto& desktop = *new Desktop;
    platform::setDefaultHost(desktop.host);
    desktop.output.start(desktop.mixer);

    auto& monitor = keyboard::KeyboardMonitor::shared();
    app::LaunchAtLogin::shared();
    app::SmartMuteManager::shared();
    const int status = QCoreApplication::exec();
    monitor.stop();
    return status;
}

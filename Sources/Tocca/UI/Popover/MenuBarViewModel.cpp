#include "UI/Popover/MenuBarViewModel.h"

#include "UI/Studio/StudioText.h"

#include <utility>

namespace tocca::ui {
namespace {

void flip(Published<bool>& setting)
{
    setting.set(!setting.get());
}

/// The display names of an enumeration's cases.
template <class Cases>
QStringList namesOf()
{
    QStringList names;
    for (const Cases value : Cases::allCases) {
        names.append(toQString(value.rawValue()));
    }
    return names;
}

template <class Cases>
void chooseCase(Published<Cases>& setting, int index)
{
    if (index >= 0 && static_cast<std::size_t>(index) < Cases::allCases.size()) {
        setting.set(Cases::allCases.at(static_cast<std::size_t>(index)));
    }
}

} // namespace

MenuBarViewModel::MenuBarViewModel(const Controllers& controllers, Action showMainWindow, Action terminate)
    : controllers_(controllers)
    , showMainWindow_(std::move(showMainWindow))
    , terminate_(std::move(terminate))
    , import_(controllers_.host, controllers_.soundPackLoader)
{
    links_.push_back(
        controllers_.audioEngine.currentSwitchType.onChange([this](const auto&) { refreshRows(); }));
    links_.push_back(
        controllers_.audioEngine.selectedCustomPack.onChange([this](const auto&) { refreshRows(); }));
    links_.push_back(controllers_.soundPackLoader.availableCustomPacks.onChange(
        [this](const auto&) { refreshCommunity(); }));
    refreshCommunity();
}

void MenuBarViewModel::refreshRows()
{
    builtInPacks_.setRows(soundPackRows::builtIn(controllers_.audioEngine));
    communityPacks_.setRows(soundPackRows::community(
        controllers_.audioEngine, controllers_.soundPackLoader.availableCustomPacks.get(), community_));
}

void MenuBarViewModel::refreshCommunity()
{
    community_.count = controllers_.soundPackLoader.availableCustomPacks.get().size();
    refreshRows();
    Q_EMIT communityChanged();
}

QStringList MenuBarViewModel::underglowThemes()
{
    return namesOf<UnderglowTheme>();
}

QString MenuBarViewModel::lubeReading() const
{
    return toQString(studioText::lubeReading(controllers_.audioEngine.lubeLevel.get()));
}

QStringList MenuBarViewModel::deskSurfaces()
{
    return namesOf<audio::AcousticDeskSurface>();
}

QString MenuBarViewModel::deskSurfaceDescription() const
{
    return toQString(controllers_.audioEngine.deskSurface.get().description());
}

QStringList MenuBarViewModel::mouseProfiles()
{
    return namesOf<audio::MouseSwitchProfile>();
}

QString MenuBarViewModel::mouseProfileDescription() const
{
    return toQString(controllers_.audioEngine.mouseProfile.get().description());
}

QString MenuBarViewModel::volumeReading() const
{
    return toQString(studioText::percentage(controllers_.audioEngine.volume.get()));
}

void MenuBarViewModel::aboutToShow()
{
    checkPermission();
    controllers_.launchAtLogin.checkStatus();
    controllers_.soundPackLoader.refreshCustomPacks();
}

void MenuBarViewModel::showMainWindow()
{
    showMainWindow_();
}

void MenuBarViewModel::terminate()
{
    terminate_();
}

void MenuBarViewModel::playKey(int key)
{
    controllers_.audioEngine.playKey(static_cast<std::uint16_t>(key), audio::KeyStrokeAction::down);
}

void MenuBarViewModel::openAccessibilitySettings()
{
    controllers_.keyboardMonitor.openAccessibilitySettings();
}

void MenuBarViewModel::checkPermission()
{
    if (controllers_.keyboardMonitor.checkPermission()) {
        controllers_.keyboardMonitor.start();
    }
}

void MenuBarViewModel::openSoundPackImporter()
{
    import_.openSoundPackImporter();
}

bool MenuBarViewModel::handleDrop(const QList<QUrl>& urls)
{
    std::vector<std::string> providers;
    for (const QUrl& url : urls) {
        providers.push_back(url.toEncoded().toStdString());
    }
    return import_.handleDrop(providers);
}

void MenuBarViewModel::chooseBuiltInPack(int row)
{
    soundPackRows::choose(controllers_.audioEngine,
                          audio::SwitchType::allCases.at(static_cast<std::size_t>(row)));
}

void MenuBarViewModel::chooseCommunityPack(int row)
{
    soundPackRows::choose(controllers_.audioEngine,
                          controllers_.soundPackLoader.availableCustomPacks.get().at(
                              community_.first() + static_cast<std::size_t>(row)));
}

void MenuBarViewModel::turnBack()
{
    community_.turnBack();
    refreshCommunity();
}

void MenuBarViewModel::turnForward()
{
    community_.turnForward();
    refreshCommunity();
}

void MenuBarViewModel::toggleEnabled()
{
    flip(controllers_.audioEngine.isEnabled);
}

void MenuBarViewModel::toggleAutoMuteOnCalls()
{
    flip(controllers_.smartMute.autoMuteOnCalls);
}

void MenuBarViewModel::toggleMuteOnSensitiveApps()
{
    flip(controllers_.smartMute.muteOnSensitiveApps);
}

void MenuBarViewModel::toggleSpatialAudio()
{
    flip(controllers_.audioEngine.isSpatialAudioEnabled);
}

void MenuBarViewModel::toggleHaptics()
{
    flip(controllers_.audioEngine.isHapticsEnabled);
}

void MenuBarViewModel::toggleBurstDynamics()
{
    flip(controllers_.audioEngine.isBurstDynamicsEnabled);
}

void MenuBarViewModel::toggleNotchHUD()
{
    flip(controllers_.notchHUD.isEnabled);
}

void MenuBarViewModel::toggleUnderglow()
{
    flip(controllers_.underglow.isEnabled);
}

void MenuBarViewModel::chooseUnderglowTheme(int index)
{
    chooseCase(controllers_.underglow.currentTheme, index);
}

void MenuBarViewModel::setLubeLevel(double level)
{
    controllers_.audioEngine.lubeLevel.set(static_cast<float>(level));
}

void MenuBarViewModel::chooseDeskSurface(int index)
{
    chooseCase(controllers_.audioEngine.deskSurface, index);
}

void MenuBarViewModel::toggleMouseAudio()
{
    flip(controllers_.audioEngine.isMouseAudioEnabled);
}

void MenuBarViewModel::chooseMouseProfile(int index)
{
    chooseCase(controllers_.audioEngine.mouseProfile, index);
}

void MenuBarViewModel::toggleScrollRatchet()
{
    flip(controllers_.audioEngine.isScrollRatchetEnabled);
}

void MenuBarViewModel::setVolume(double volume)
{
    controllers_.audioEngine.volume.set(static_cast<float>(volume));
}

void MenuBarViewModel::togglePresenceEQ()
{
    flip(controllers_.audioEngine.isPresenceEQEnabled);
}

void MenuBarViewModel::toggleUpstroke()
{
    flip(controllers_.audioEngine.playUpstroke);
}

void MenuBarViewModel::toggleLaunchAtLogin()
{
    controllers_.launchAtLogin.toggle();
}

} // namespace tocca::ui

#pragma once

#include "App/LaunchAtLogin.h"
#include "App/SmartMuteManager.h"
#include "Audio/AudioEngine.h"
#include "UI/Controllers.h"
#include "UI/NotchHUD/NotchAcousticHUDController.h"
#include "UI/Quick/UiProperty.h"
#include "UI/Studio/StudioText.h"
#include "UI/Underglow/SpatialUnderglowController.h"

#include <QQmlEngine>
#include <QStringList>

namespace tocca::ui {

template <class Case>
[[nodiscard]] QStringList namesOfCases(const Published<Case>& /*setting*/)
{
    QStringList names;
    for (const Case value : Case::allCases) {
        names.append(toQString(value.rawValue()));
    }
    return names;
}

/// Sets a case by its index. Errors: an index that there is not changes nothing.
template <class Case>
void chooseCase(Published<Case>& setting, int index)
{
    if (index >= 0 && static_cast<std::size_t>(index) < Case::allCases.size()) {
        setting.set(Case::allCases.at(static_cast<std::size_t>(index)));
    }
}

} // namespace tocca::ui

/// A setting that is on or off: `name` and `toggle…()`.
#define UI_SWITCH(name, Verb, source)                                                                        \
    UI_PROPERTY(bool, name, source)                                                                          \
public:                                                                                                      \
    Q_INVOKABLE void toggle##Verb()                                                                          \
    {                                                                                                        \
        (source).set(!(source).get());                                                                       \
    }                                                                                                        \
                                                                                                             \
private:

/// A setting of 0…1: `name` and `set…(level)`.
#define UI_LEVEL(name, Verb, source)                                                                         \
    UI_PROPERTY(double, name, source)                                                                        \
public:                                                                                                      \
    Q_INVOKABLE void set##Verb(double level)                                                                 \
    {                                                                                                        \
        (source).set(tocca::ui::studioText::levelOf(level));                                                 \
    }                                                                                                        \
                                                                                                             \
private:

/// A setting that is one of several: the chosen one's index `name`, the names of all `name`s, and `choose…(index)`.
#define UI_CHOICE(name, Verb, source)                                                                        \
    UI_PROPERTY(int, name, source)                                                                           \
    Q_PROPERTY(QList<QString> name##s READ name##s CONSTANT FINAL)                                           \
public:                                                                                                      \
    [[nodiscard]] QStringList name##s() const                                                                \
    {                                                                                                        \
        return tocca::ui::namesOfCases(source);                                                              \
    }                                                                                                        \
    Q_INVOKABLE void choose##Verb(int index)                                                                 \
    {                                                                                                        \
        tocca::ui::chooseCase(source, index);                                                                \
    }                                                                                                        \
                                                                                                             \
private:

namespace tocca::ui {

/// The model of every setting of the program, as the popover and the Studio window show and change it.
///
/// What is shown is what the controllers say: a change that one refuses is not seen.
/// Units: levels are 0…1; choices are indexes into their lists.
/// Threads: main.
class SettingsViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the windows")
    Q_PROPERTY(QString volumeReading READ volumeReading NOTIFY volumeChanged FINAL)
    Q_PROPERTY(QStringList presetLabels READ presetLabels CONSTANT FINAL)
    Q_PROPERTY(int activePreset READ activePreset NOTIFY volumeChanged FINAL)
    Q_PROPERTY(QString lubeReading READ lubeReading NOTIFY lubeLevelChanged FINAL)
    Q_PROPERTY(QString deskSurfaceDescription READ deskSurfaceDescription NOTIFY deskSurfaceChanged FINAL)
    Q_PROPERTY(QString mouseProfileDescription READ mouseProfileDescription NOTIFY mouseProfileChanged FINAL)
    Q_PROPERTY(QString packsDirectory READ packsDirectory CONSTANT FINAL)

    const Controllers controllers_;

    UI_SWITCH(isEnabled, Enabled, controllers_.audioEngine.isEnabled)
    UI_LEVEL(volume, Volume, controllers_.audioEngine.volume)
    UI_SWITCH(isPresenceEQEnabled, PresenceEQ, controllers_.audioEngine.isPresenceEQEnabled)
    UI_SWITCH(playsUpstroke, Upstroke, controllers_.audioEngine.playUpstroke)
    UI_SWITCH(isSpatialAudioEnabled, SpatialAudio, controllers_.audioEngine.isSpatialAudioEnabled)
    UI_SWITCH(isHapticsEnabled, Haptics, controllers_.audioEngine.isHapticsEnabled)
    UI_SWITCH(isBurstDynamicsEnabled, BurstDynamics, controllers_.audioEngine.isBurstDynamicsEnabled)
    UI_LEVEL(lubeLevel, LubeLevel, controllers_.audioEngine.lubeLevel)
    UI_CHOICE(deskSurface, DeskSurface, controllers_.audioEngine.deskSurface)
    UI_SWITCH(isMouseAudioEnabled, MouseAudio, controllers_.audioEngine.isMouseAudioEnabled)
    UI_CHOICE(mouseProfile, MouseProfile, controllers_.audioEngine.mouseProfile)
    UI_SWITCH(isScrollRatchetEnabled, ScrollRatchet, controllers_.audioEngine.isScrollRatchetEnabled)
    UI_SWITCH(isNotchHUDEnabled, NotchHUD, controllers_.notchHUD.isEnabled)
    UI_SWITCH(isUnderglowEnabled, Underglow, controllers_.underglow.isEnabled)
    UI_CHOICE(underglowTheme, UnderglowTheme, controllers_.underglow.currentTheme)
    UI_SWITCH(autoMuteOnCalls, AutoMuteOnCalls, controllers_.smartMute.autoMuteOnCalls)
    UI_SWITCH(muteOnSensitiveApps, MuteOnSensitiveApps, controllers_.smartMute.muteOnSensitiveApps)
    UI_PROPERTY(bool, launchesAtLogin, controllers_.launchAtLogin.isEnabled)

public:
    explicit SettingsViewModel(const Controllers& controllers)
        : controllers_(controllers)
    {}

    [[nodiscard]] QString volumeReading() const;
    [[nodiscard]] static QStringList presetLabels();

    /// The preset that the volume is as good as; −1 for none.
    [[nodiscard]] int activePreset() const;
    [[nodiscard]] QString lubeReading() const;
    [[nodiscard]] QString deskSurfaceDescription() const;
    [[nodiscard]] QString mouseProfileDescription() const;

    /// Where imported packs are kept; empty when the system names no place for the user's data.
    [[nodiscard]] QString packsDirectory() const;

    /// Errors: an index that there is not changes nothing.
    Q_INVOKABLE void choosePreset(int index);

    /// What `launchesAtLogin` says afterwards is up to the desktop.
    Q_INVOKABLE void toggleLaunchAtLogin();

    /// Shows the folder of the imported packs in the desktop's file manager.
    Q_INVOKABLE void openPacksDirectory();
};

} // namespace tocca::ui

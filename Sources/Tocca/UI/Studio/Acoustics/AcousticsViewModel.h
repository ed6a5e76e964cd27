#pragma once

#include "Audio/AudioEngine.h"
#include "UI/Controllers.h"
#include "UI/NotchHUD/NotchAcousticHUDController.h"
#include "UI/Quick/UiProperty.h"
#include "UI/Underglow/SpatialUnderglowController.h"

#include <QQmlEngine>
#include <QStringList>

namespace tocca::ui {

/// What the console shows and sets. Units: levels are 0…1. Threads: main.
class AcousticsViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the window")
    Q_PROPERTY(QString volumeReading READ volumeReading NOTIFY volumeChanged FINAL)
    Q_PROPERTY(QStringList presetLabels READ presetLabels CONSTANT FINAL)
    Q_PROPERTY(int activePreset READ activePreset NOTIFY volumeChanged FINAL)
    Q_PROPERTY(QString lubeReading READ lubeReading NOTIFY lubeLevelChanged FINAL)
    Q_PROPERTY(QList<QString> deskSurfaces READ deskSurfaces CONSTANT FINAL)
    Q_PROPERTY(QString deskSurfaceDescription READ deskSurfaceDescription NOTIFY deskSurfaceChanged FINAL)
    Q_PROPERTY(QList<QString> mouseProfiles READ mouseProfiles CONSTANT FINAL)
    Q_PROPERTY(QString mouseProfileDescription READ mouseProfileDescription NOTIFY mouseProfileChanged FINAL)
    Q_PROPERTY(QList<QString> underglowThemes READ underglowThemes CONSTANT FINAL)

    audio::AudioEngine& engine_;
    NotchAcousticHUDController& notchHUD_;
    SpatialUnderglowController& underglow_;

    UI_PROPERTY(double, volume, engine_.volume)
    UI_PROPERTY(bool, isPresenceEQEnabled, engine_.isPresenceEQEnabled)
    UI_PROPERTY(bool, playsUpstroke, engine_.playUpstroke)
    UI_PROPERTY(bool, isSpatialAudioEnabled, engine_.isSpatialAudioEnabled)
    UI_PROPERTY(bool, isHapticsEnabled, engine_.isHapticsEnabled)
    UI_PROPERTY(double, lubeLevel, engine_.lubeLevel)
    UI_PROPERTY(int, deskSurface, engine_.deskSurface)
    UI_PROPERTY(bool, isMouseAudioEnabled, engine_.isMouseAudioEnabled)
    UI_PROPERTY(int, mouseProfile, engine_.mouseProfile)
    UI_PROPERTY(bool, isScrollRatchetEnabled, engine_.isScrollRatchetEnabled)
    UI_PROPERTY(bool, isNotchHUDEnabled, notchHUD_.isEnabled)
    UI_PROPERTY(bool, isUnderglowEnabled, underglow_.isEnabled)
    UI_PROPERTY(int, underglowTheme, underglow_.currentTheme)

public:
    explicit AcousticsViewModel(const Controllers& controllers);

    [[nodiscard]] QString volumeReading() const;
    [[nodiscard]] static QStringList presetLabels();

    /// The preset that the volume is as good as; −1 for none.
    [[nodiscard]] int activePreset() const;
    [[nodiscard]] QString lubeReading() const;
    [[nodiscard]] static QStringList deskSurfaces();
    [[nodiscard]] QString deskSurfaceDescription() const;
    [[nodiscard]] static QStringList mouseProfiles();
    [[nodiscard]] QString mouseProfileDescription() const;
    [[nodiscard]] static QStringList underglowThemes();

    Q_INVOKABLE void setVolume(double volume);
    Q_INVOKABLE void choosePreset(int index);
    Q_INVOKABLE void togglePresenceEQ();
    Q_INVOKABLE void toggleUpstroke();
    Q_INVOKABLE void toggleSpatialAudio();
    Q_INVOKABLE void toggleHaptics();
    Q_INVOKABLE void setLubeLevel(double level);
    Q_INVOKABLE void chooseDeskSurface(int index);
    Q_INVOKABLE void toggleMouseAudio();
    Q_INVOKABLE void chooseMouseProfile(int index);
    Q_INVOKABLE void toggleScrollRatchet();
    Q_INVOKABLE void toggleNotchHUD();
    Q_INVOKABLE void toggleUnderglow();
    Q_INVOKABLE void chooseUnderglowTheme(int index);
};

} // namespace tocca::ui

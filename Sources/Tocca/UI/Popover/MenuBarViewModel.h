#pragma once

#include "App/LaunchAtLogin.h"
#include "App/SmartMuteManager.h"
#include "Audio/AudioEngine.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "Keyboard/KeyboardMonitor.h"
#include "Platform/KeyCodes.h"
#include "UI/Controllers.h"
#include "UI/NotchHUD/NotchAcousticHUDController.h"
#include "UI/Popover/Packs/CommunityPage.h"
#include "UI/Popover/Packs/PackImport.h"
#include "UI/Popover/Packs/SoundPackRowsViewModel.h"
#include "UI/Quick/UiProperty.h"
#include "UI/Underglow/SpatialUnderglowController.h"

#include <QList>
#include <QQmlEngine>
#include <QStringList>
#include <QUrl>

#include <functional>

namespace tocca::ui {

/// What the popover shows and changes. Units: levels are 0…1; choices are indexes into their lists. Threads: main.
class MenuBarViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the popover")
    Q_PROPERTY(QAbstractItemModel* builtInPacks READ builtInPacks CONSTANT FINAL)
    Q_PROPERTY(QAbstractItemModel* communityPacks READ communityPacks CONSTANT FINAL)
    Q_PROPERTY(bool hasCommunityLibrary READ hasCommunityLibrary NOTIFY communityChanged FINAL)
    Q_PROPERTY(QString communityTitle READ communityTitle NOTIFY communityChanged FINAL)
    Q_PROPERTY(QString communityPosition READ communityPosition NOTIFY communityChanged FINAL)
    Q_PROPERTY(bool canTurnBack READ canTurnBack NOTIFY communityChanged FINAL)
    Q_PROPERTY(bool canTurnForward READ canTurnForward NOTIFY communityChanged FINAL)
    Q_PROPERTY(QList<QString> underglowThemes READ underglowThemes CONSTANT FINAL)
    Q_PROPERTY(QString lubeReading READ lubeReading NOTIFY lubeLevelChanged FINAL)
    Q_PROPERTY(QList<QString> deskSurfaces READ deskSurfaces CONSTANT FINAL)
    Q_PROPERTY(QString deskSurfaceDescription READ deskSurfaceDescription NOTIFY deskSurfaceChanged FINAL)
    Q_PROPERTY(QList<QString> mouseProfiles READ mouseProfiles CONSTANT FINAL)
    Q_PROPERTY(QString mouseProfileDescription READ mouseProfileDescription NOTIFY mouseProfileChanged FINAL)
    Q_PROPERTY(QString volumeReading READ volumeReading NOTIFY volumeChanged FINAL)

    const Controllers controllers_;
    const std::function<void()> showMainWindow_;
    const std::function<void()> terminate_;
    PackImport import_;

    UI_PROPERTY(bool, isEnabled, controllers_.audioEngine.isEnabled)
    UI_PROPERTY(double, keyVisualizerTrigger, controllers_.audioEngine.keyVisualizerTrigger)
    UI_PROPERTY(double, lastActiveKeyPan, controllers_.audioEngine.lastActiveKeyPan)
    UI_PROPERTY(bool, isSmartMuted, controllers_.smartMute.isSmartMuted)
    UI_PROPERTY(QString, smartMuteReason, controllers_.smartMute.smartMuteReason)
    UI_PROPERTY(bool, hasAccessibilityPermission, controllers_.keyboardMonitor.hasAccessibilityPermission)
    UI_PROPERTY(QString, importMessage, import_.importMessage)
    UI_PROPERTY(bool, autoMuteOnCalls, controllers_.smartMute.autoMuteOnCalls)
    UI_PROPERTY(bool, muteOnSensitiveApps, controllers_.smartMute.muteOnSensitiveApps)
    UI_PROPERTY(bool, isSpatialAudioEnabled, controllers_.audioEngine.isSpatialAudioEnabled)
    UI_PROPERTY(bool, isHapticsEnabled, controllers_.audioEngine.isHapticsEnabled)
    UI_PROPERTY(bool, isBurstDynamicsEnabled, controllers_.audioEngine.isBurstDynamicsEnabled)
    UI_PROPERTY(bool, isNotchHUDEnabled, controllers_.notchHUD.isEnabled)
    UI_PROPERTY(bool, isUnderglowEnabled, controllers_.underglow.isEnabled)
    UI_PROPERTY(int, underglowTheme, controllers_.underglow.currentTheme)
    UI_PROPERTY(double, lubeLevel, controllers_.audioEngine.lubeLevel)
    UI_PROPERTY(int, deskSurface, controllers_.audioEngine.deskSurface)
    UI_PROPERTY(bool, isMouseAudioEnabled, controllers_.audioEngine.isMouseAudioEnabled)
    UI_PROPERTY(int, mouseProfile, controllers_.audioEngine.mouseProfile)
    UI_PROPERTY(bool, isScrollRatchetEnabled, controllers_.audioEngine.isScrollRatchetEnabled)
    UI_PROPERTY(double, volume, controllers_.audioEngine.volume)
    UI_PROPERTY(bool, isPresenceEQEnabled, controllers_.audioEngine.isPresenceEQEnabled)
    UI_PROPERTY(bool, playsUpstroke, controllers_.audioEngine.playUpstroke)
    UI_PROPERTY(bool, launchesAtLogin, controllers_.launchAtLogin.isEnabled)
    UI_PROPERTY(double, keystrokeCount, controllers_.keyboardMonitor.keystrokeCount)

public:
    using Action = std::function<void()>;

    /// `showMainWindow` opens the Studio window; `terminate` asks the program to end.
    MenuBarViewModel(const Controllers& controllers, Action showMainWindow, Action terminate);

    [[nodiscard]] QAbstractItemModel* builtInPacks() { return &builtInPacks_; }

    [[nodiscard]] QAbstractItemModel* communityPacks() { return &communityPacks_; }

    [[nodiscard]] bool hasCommunityLibrary() const { return community_.count > 0; }

    [[nodiscard]] QString communityTitle() const { return QString::fromStdString(community_.title()); }

    [[nodiscard]] QString communityPosition() const { return QString::fromStdString(community_.position()); }

    [[nodiscard]] bool canTurnBack() const { return community_.canTurnBack(); }

    [[nodiscard]] bool canTurnForward() const { return community_.canTurnForward(); }

    [[nodiscard]] static QStringList underglowThemes();
    [[nodiscard]] QString lubeReading() const;
    [[nodiscard]] static QStringList deskSurfaces();
    [[nodiscard]] QString deskSurfaceDescription() const;
    [[nodiscard]] static QStringList mouseProfiles();
    [[nodiscard]] QString mouseProfileDescription() const;
    [[nodiscard]] QString volumeReading() const;

    /// To be called each time the popover's content is shown: asks anew for the permission, the login item and the imported packs.
    Q_INVOKABLE void aboutToShow();

    Q_INVOKABLE void showMainWindow();
    Q_INVOKABLE void terminate();

    /// The keys that can be tried, by their codes: one on the left, one in the middle, one on the right.
    enum QuickKey : quint16 {
        LeftKey = platform::key::kA,
        SpaceBar = platform::key::kSpace,
        RightKey = platform::key::kReturn
    };
    Q_ENUM(QuickKey)

    /// Lets a `QuickKey` be heard as if it were pressed. Its type is one that ahead-of-time compiled QML can pass.
    Q_INVOKABLE void playKey(int key);
    Q_INVOKABLE void openAccessibilitySettings();
    Q_INVOKABLE void checkPermission();

    Q_INVOKABLE void openSoundPackImporter();
    Q_INVOKABLE bool handleDrop(const QList<QUrl>& urls);
    Q_INVOKABLE void chooseBuiltInPack(int row);

    /// Chooses by row of the page shown.
    Q_INVOKABLE void chooseCommunityPack(int row);
    Q_INVOKABLE void turnBack();
    Q_INVOKABLE void turnForward();

    Q_INVOKABLE void toggleEnabled();
    Q_INVOKABLE void toggleAutoMuteOnCalls();
    Q_INVOKABLE void toggleMuteOnSensitiveApps();
    Q_INVOKABLE void toggleSpatialAudio();
    Q_INVOKABLE void toggleHaptics();
    Q_INVOKABLE void toggleBurstDynamics();
    Q_INVOKABLE void toggleNotchHUD();
    Q_INVOKABLE void toggleUnderglow();
    Q_INVOKABLE void chooseUnderglowTheme(int index);
    Q_INVOKABLE void setLubeLevel(double level);
    Q_INVOKABLE void chooseDeskSurface(int index);
    Q_INVOKABLE void toggleMouseAudio();
    Q_INVOKABLE void chooseMouseProfile(int index);
    Q_INVOKABLE void toggleScrollRatchet();
    Q_INVOKABLE void setVolume(double volume);
    Q_INVOKABLE void togglePresenceEQ();
    Q_INVOKABLE void toggleUpstroke();
    Q_INVOKABLE void toggleLaunchAtLogin();

    Q_SIGNAL void communityChanged();

private:
    void refreshRows();
    void refreshCommunity();

    CommunityPage community_;
    SoundPackRowsViewModel builtInPacks_;
    SoundPackRowsViewModel communityPacks_;
    std::vector<Subscription> links_;
};

} // namespace tocca::ui

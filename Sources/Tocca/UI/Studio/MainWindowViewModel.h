#pragma once

#include "Keyboard/KeyboardMonitor.h"
#include "UI/Controllers.h"
#include "UI/Quick/UiProperty.h"
#include "UI/Studio/Acoustics/AcousticsViewModel.h"
#include "UI/Studio/Pages/PrivacyViewModel.h"
#include "UI/Studio/Pages/SettingsViewModel.h"
#include "UI/Studio/Pages/TelemetryViewModel.h"
#include "UI/Studio/Showroom/ShowroomViewModel.h"
#include "UI/Studio/Sidebar/StudioTab.h"
#include "UI/Studio/Stage/StageViewModel.h"
#include "UI/Studio/WindowMenu/MainMenuViewModel.h"

#include <QQmlEngine>
#include <QStringList>

namespace tocca::ui {

/// The Studio window: which page it shows, and the models of the pages.
///
/// Threads: main.
/// Lifetime: what it holds of the person's choices lasts as long as the content of the window.
class MainWindowViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QStringList tabTitles READ tabTitles CONSTANT FINAL)
    Q_PROPERTY(QStringList tabIcons READ tabIcons CONSTANT FINAL)
    Q_PROPERTY(int selectedTab READ selectedTab NOTIFY selectedTabChanged FINAL)
    Q_PROPERTY(tocca::ui::MainMenuViewModel* mainMenu READ mainMenu CONSTANT FINAL)
    Q_PROPERTY(tocca::ui::ShowroomViewModel* showroom READ showroom CONSTANT FINAL)
    Q_PROPERTY(tocca::ui::AcousticsViewModel* acoustics READ acoustics CONSTANT FINAL)
    Q_PROPERTY(tocca::ui::StageViewModel* stage READ stage CONSTANT FINAL)
    Q_PROPERTY(tocca::ui::PrivacyViewModel* privacy READ privacy CONSTANT FINAL)
    Q_PROPERTY(tocca::ui::TelemetryViewModel* telemetry READ telemetry CONSTANT FINAL)
    Q_PROPERTY(tocca::ui::SettingsViewModel* settings READ settings CONSTANT FINAL)

    keyboard::KeyboardMonitor& monitor_;

    UI_PROPERTY(bool, hasAccessibilityPermission, monitor_.hasAccessibilityPermission)

public:
    explicit MainWindowViewModel(const Controllers& controllers);

    [[nodiscard]] static QStringList tabTitles();
    [[nodiscard]] static QStringList tabIcons();

    [[nodiscard]] int selectedTab() const { return selectedTab_; }

    [[nodiscard]] MainMenuViewModel* mainMenu() { return &mainMenu_; }

    [[nodiscard]] ShowroomViewModel* showroom() { return &showroom_; }

    [[nodiscard]] AcousticsViewModel* acoustics() { return &acoustics_; }

    [[nodiscard]] StageViewModel* stage() { return &stage_; }

    [[nodiscard]] PrivacyViewModel* privacy() { return &privacy_; }

    [[nodiscard]] TelemetryViewModel* telemetry() { return &telemetry_; }

    [[nodiscard]] SettingsViewModel* settings() { return &settings_; }

    /// Tabs that there are not are ignored.
    Q_INVOKABLE void selectTab(int index);

    Q_SIGNAL void selectedTabChanged();

private:
    StudioTab selectedTab_{StudioTab::showroom};
    MainMenuViewModel mainMenu_;
    ShowroomViewModel showroom_;
    AcousticsViewModel acoustics_;
    StageViewModel stage_;
    PrivacyViewModel privacy_;
    TelemetryViewModel telemetry_;
    SettingsViewModel settings_;
};

} // namespace tocca::ui

#pragma once

#include "UI/Controllers.h"
#include "UI/Settings/SettingsViewModel.h"
#include "UI/Settings/StatusViewModel.h"
#include "UI/Studio/Showroom/ShowroomViewModel.h"
#include "UI/Studio/Sidebar/StudioTab.h"
#include "UI/Studio/Stage/StageViewModel.h"
#include "UI/Studio/WindowMenu/MainMenuViewModel.h"

#include <QQmlEngine>
#include <QStringList>

namespace tocca::ui {

/// The names by which QML knows the cases of `StudioTab`.
namespace studioTab {
Q_NAMESPACE
QML_NAMED_ELEMENT(StudioTab)

enum Case : std::uint8_t {
    Showroom = StudioTab::showroom,
    Acoustics = StudioTab::acoustics,
    Stage = StudioTab::stage,
    Privacy = StudioTab::privacy,
    Telemetry = StudioTab::telemetry,
    Settings = StudioTab::settings
};
Q_ENUM_NS(Case)
} // namespace studioTab

/// The model of the Studio window: which page it shows, and the models of the pages.
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
    Q_PROPERTY(tocca::ui::SettingsViewModel* settings READ settings CONSTANT FINAL)
    Q_PROPERTY(tocca::ui::StatusViewModel* status READ status CONSTANT FINAL)
    Q_PROPERTY(tocca::ui::ShowroomViewModel* showroom READ showroom CONSTANT FINAL)
    Q_PROPERTY(tocca::ui::StageViewModel* stage READ stage CONSTANT FINAL)

public:
    explicit MainWindowViewModel(const Controllers& controllers);

    [[nodiscard]] static QStringList tabTitles();
    [[nodiscard]] static QStringList tabIcons();

    [[nodiscard]] int selectedTab() const { return selectedTab_; }

    [[nodiscard]] MainMenuViewModel* mainMenu() { return &mainMenu_; }

    [[nodiscard]] SettingsViewModel* settings() { return &settings_; }

    [[nodiscard]] StatusViewModel* status() { return &status_; }

    [[nodiscard]] ShowroomViewModel* showroom() { return &showroom_; }

    [[nodiscard]] StageViewModel* stage() { return &stage_; }

    /// Tabs that there are not are ignored.
    Q_INVOKABLE void selectTab(int index);

    Q_SIGNAL void selectedTabChanged();

private:
    StudioTab selectedTab_{StudioTab::showroom};
    MainMenuViewModel mainMenu_;
    SettingsViewModel settings_;
    StatusViewModel status_;
    ShowroomViewModel showroom_;
    StageViewModel stage_;
};

} // namespace tocca::ui

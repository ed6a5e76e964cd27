#pragma once

#include "App/LaunchAtLogin.h"
#include "UI/Controllers.h"
#include "UI/Quick/UiProperty.h"

#include <QQmlEngine>

namespace tocca::ui {

/// What the page of the system shows and does. Threads: main.
class SettingsViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the window")
    Q_PROPERTY(QString packsDirectory READ packsDirectory CONSTANT FINAL)

    Controllers controllers_;

    UI_PROPERTY(bool, isLaunchAtLoginEnabled, controllers_.launchAtLogin.isEnabled)

public:
    explicit SettingsViewModel(const Controllers& controllers)
        : controllers_(controllers)
    {}

    /// Where imported packs are kept; empty when the system names no place for the user's data.
    [[nodiscard]] QString packsDirectory() const;

    /// What `isLaunchAtLoginEnabled` says afterwards is up to the desktop.
    Q_INVOKABLE void toggleLaunchAtLogin();

    /// Shows the folder of the imported packs in the desktop's file manager.
    Q_INVOKABLE void openPacksDirectory();
};

} // namespace tocca::ui

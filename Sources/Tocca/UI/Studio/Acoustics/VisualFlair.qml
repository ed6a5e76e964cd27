import QtQuick
import Tocca.UI

/// The console's card for the two overlays.
ConsoleSection {
    id: root

    required property SettingsViewModel model

    icon: "sparkles"
    title: "Visual Flair & Desktop Overlays"

    CheckToggle {
        objectName: "notchHUD"
        width: parent.width
        checked: root.model.isNotchHUDEnabled
        line: "Spring-animated OLED waveform & dynamic WPM speedometer pinned to the camera notch (Off by default)."
        title: "MacBook Notch Dynamic Island HUD"
        onToggled: root.model.toggleNotchHUD()
    }

    CheckToggle {
        objectName: "underglow"
        width: parent.width
        checked: root.model.isUnderglowEnabled
        line: "Ambient bottom-edge glow matching physical key coordinates across your screen."
        title: "Perimeter Spatial Underglow"
        onToggled: root.model.toggleUnderglow()
    }

    Column {
        width: parent.width
        spacing: 8

        Label {
            width: parent.width
            color: Theme.textPrimary
            font.weight: Font.Bold
            size: Theme.rowTitleSize
            text: "Underglow Theme"
        }

        SegmentedPicker {
            objectName: "underglowTheme"
            width: parent.width
            currentIndex: root.model.underglowTheme
            options: root.model.underglowThemes
            title: "Underglow Theme"
            onChosen: index => root.model.chooseUnderglowTheme(index)
        }
    }
}

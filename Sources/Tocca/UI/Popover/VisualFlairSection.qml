pragma ComponentBehavior: Bound
import QtQuick
import Tocca.UI

/// The popover's section for the two overlays.
Section {
    id: root

    required property SettingsViewModel model

    title: "VISUAL FLAIR & OVERLAYS"

    ToggleRow {
        objectName: "isNotchHUDEnabled"
        width: root.width
        checked: root.model.isNotchHUDEnabled
        icon: "camera.badge.ellipsis"
        line: "Retractable OLED waveform & live WPM speedometer (Off by default)"
        title: "MacBook Notch Dynamic Island HUD"
        onToggled: root.model.toggleNotchHUD()
    }

    ToggleRow {
        objectName: "isUnderglowEnabled"
        width: root.width
        checked: root.model.isUnderglowEnabled
        icon: "sparkles"
        line: "Ambient bottom-edge glow matching key position"
        title: "Perimeter Spatial Underglow"
        onToggled: root.model.toggleUnderglow()
    }

    Repeater {
        model: root.model.isUnderglowEnabled ? 1 : 0
        delegate: PickerRow {
            width: root.width
            currentIndex: root.model.underglowTheme
            options: root.model.underglowThemes
            pickerName: "underglowTheme"
            title: "Underglow Theme"
            onChosen: index => root.model.chooseUnderglowTheme(index)
        }
    }
}

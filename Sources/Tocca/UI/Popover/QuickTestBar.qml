pragma Strict
import QtQuick
import Tocca.UI

/// A row of buttons: three keys to hear, and the HUD's switch.
Row {
    id: root

    required property MenuBarViewModel model
    readonly property real each: (width - 3 * spacing) / 4

    spacing: 8

    QuickKeyButton {
        objectName: "quickLeft"
        width: root.each
        icon: "arrow.left"
        text: "Left"
        onActivated: root.model.playKey(MenuBarViewModel.LeftKey)
    }

    QuickKeyButton {
        objectName: "quickSpacebar"
        width: root.each
        icon: "space"
        text: "Spacebar"
        onActivated: root.model.playKey(MenuBarViewModel.SpaceBar)
    }

    QuickKeyButton {
        objectName: "quickRight"
        width: root.each
        icon: "arrow.right"
        text: "Right"
        onActivated: root.model.playKey(MenuBarViewModel.RightKey)
    }

    QuickKeyButton {
        objectName: "quickHUD"
        width: root.each
        Accessible.checkable: true
        Accessible.checked: on
        hint: "Toggle MacBook Notch Dynamic Island HUD (Off by default)"
        icon: "camera.badge.ellipsis"
        on: root.model.settings.isNotchHUDEnabled
        text: on ? "HUD: ON" : "HUD: OFF"
        onActivated: root.model.settings.toggleNotchHUD()
    }
}

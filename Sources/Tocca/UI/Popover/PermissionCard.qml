pragma Strict
import QtQuick
import Tocca.UI

/// A card that asks for the permission to hear the whole desktop's keys.
Card {
    id: root

    required property MenuBarViewModel model

    objectName: "permissionCard"
    borderColor: Blend.tint(Theme.cardBorder, Blend.alpha(Theme.warning, 0.5))
    color: Blend.tint(Theme.cardBg, Blend.alpha(Theme.warning, 0.06))
    padding: 12

    Symbol {
        x: 1
        y: 1
        color: Theme.warning
        name: "exclamationmark.triangle.fill"
        size: 18
    }

    Column {
        x: Theme.symbolColumn + 10
        width: root.width - 2 * root.padding - x
        spacing: 10

        TitleAndLine {
            width: parent.width
            line: "To hear clicks in Notes, Safari, Slack & Code, enable Tocca in macOS Settings."
            mostLines: 4
            title: "Accessibility Required for Global Typing"
        }

        Row {
            spacing: 8

            PushButton {
                objectName: "openSettings"
                implicitHeight: 28
                text: "Open Settings"
                onActivated: root.model.openAccessibilitySettings()
            }

            PushButton {
                objectName: "checkAgain"
                implicitHeight: 28
                text: "Check Again"
                onActivated: root.model.checkPermission()
            }
        }
    }
}

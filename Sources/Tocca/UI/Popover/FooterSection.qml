pragma Strict
import QtQuick
import Tocca.UI

/// The end of the popover: way to the Studio window, start with the session, state of capture, and "Quit".
Column {
    id: root

    required property MenuBarViewModel model

    spacing: Theme.rowGap

    StudioButton {
        objectName: "openTocca"
        width: root.width
        onActivated: root.model.showMainWindow()
    }

    ToggleRow {
        objectName: "launchesAtLogin"
        width: root.width
        checked: root.model.settings.launchesAtLogin
        title: "Launch at Login"
        onToggled: root.model.settings.toggleLaunchAtLogin()
    }

    Item {
        width: root.width
        height: 28

        Rectangle {
            id: light
            anchors.verticalCenter: parent.verticalCenter
            width: 7
            height: 7
            radius: width / 2
            color: root.model.status.hasAccessibilityPermission ? Theme.mintStatus : Theme.amberAccent
        }

        Label {
            objectName: "hookStatus"
            anchors.left: light.right
            anchors.leftMargin: 6
            anchors.right: quit.left
            anchors.rightMargin: 8
            anchors.bottom: parent.verticalCenter
            color: root.model.status.hasAccessibilityPermission ? Theme.mintStatus : Theme.amberAccent
            font.weight: Font.DemiBold
            size: 10.5
            text: root.model.status.hasAccessibilityPermission ? "System Hook Active" : "In-App Only (Awaiting Permission)"
        }

        Label {
            objectName: "strokes"
            anchors.left: light.right
            anchors.leftMargin: 6
            anchors.top: parent.verticalCenter
            color: Theme.textMuted
            size: 10.5
            text: root.model.status.keystrokes + " strokes"
        }

        PushButton {
            id: quit
            objectName: "quit"
            anchors.right: parent.right
            implicitHeight: 28
            text: "Quit"
            onActivated: root.model.terminate()
        }
    }
}

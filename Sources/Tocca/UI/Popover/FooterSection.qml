pragma Strict
import QtQuick
import Tocca.UI

/// The way to the Studio window, the start with the session, the state of capture, and the end.
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
        checked: root.model.launchesAtLogin
        title: "Launch at Login"
        onToggled: root.model.toggleLaunchAtLogin()
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
            color: root.model.hasAccessibilityPermission ? Theme.mintStatus : Theme.amberAccent
        }

        Label {
            objectName: "hookStatus"
            anchors.left: light.right
            anchors.leftMargin: 6
            anchors.right: quit.left
            anchors.rightMargin: 8
            anchors.bottom: parent.verticalCenter
            color: root.model.hasAccessibilityPermission ? Theme.mintStatus : Theme.amberAccent
            font.weight: Font.DemiBold
            size: 10.5
            text: root.model.hasAccessibilityPermission ? "System Hook Active" : "In-App Only (Awaiting Permission)"
        }

        Label {
            objectName: "strokes"
            anchors.left: light.right
            anchors.leftMargin: 6
            anchors.top: parent.verticalCenter
            color: Theme.textMuted
            size: 10.5
            text: root.model.keystrokeCount + " strokes"
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

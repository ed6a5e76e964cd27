import QtQuick
import Tocca.UI

/// How the program sits in the system.
StudioPage {
    id: root

    required property SettingsViewModel model
    readonly property bool hasDirectory: root.model.packsDirectory !== ""

    title: "System Integration"
    subtitle: "Startup configuration and custom soundpack library directory."

    ConsoleSection {
        width: parent.width
        icon: "arrow.triangle.2.circlepath"
        title: "System Startup"

        CheckToggle {
            objectName: "launchAtLogin"
            width: parent.width
            checked: root.model.isLaunchAtLoginEnabled
            line: "Starts quietly in the menu bar when your Mac turns on."
            title: "Launch Tocca on macOS Startup"
            onToggled: root.model.toggleLaunchAtLogin()
        }
    }

    ConsoleSection {
        width: parent.width
        icon: "folder.fill"
        title: "Soundpacks Directory"

        Item {
            width: parent.width
            height: open.height

            Label {
                objectName: "packsPath"
                anchors.left: parent.left
                anchors.right: open.left
                anchors.rightMargin: 16
                anchors.verticalCenter: parent.verticalCenter
                elide: Text.ElideMiddle
                font.family: root.hasDirectory ? Theme.monoFace : Theme.textFace
                size: 11
                text: root.hasDirectory ? root.model.packsDirectory : "This system names no folder for your data."
            }

            PushButton {
                objectName: "openPacks"
                id: open
                anchors.right: parent.right
                implicitHeight: 28
                enabled: root.hasDirectory
                text: "Open in Finder"
                onActivated: root.model.openPacksDirectory()
            }
        }
    }
}

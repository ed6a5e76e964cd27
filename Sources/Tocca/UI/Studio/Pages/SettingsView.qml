import QtQuick
import Tocca.UI

/// The page for the start with the session and the folder of the imported packs.
StudioPage {
    id: root

    required property MainWindowViewModel model
    readonly property SettingsViewModel settings: model.settings
    readonly property bool hasDirectory: root.settings.packsDirectory !== ""

    title: "System Integration"
    subtitle: "Startup configuration and custom soundpack library directory."

    ConsoleSection {
        width: parent.width
        icon: "arrow.triangle.2.circlepath"
        title: "System Startup"

        CheckToggle {
            objectName: "launchAtLogin"
            width: parent.width
            checked: root.settings.launchesAtLogin
            line: "Starts quietly in the menu bar when your Mac turns on."
            title: "Launch Tocca on macOS Startup"
            onToggled: root.settings.toggleLaunchAtLogin()
        }
    }

    ConsoleSection {
        width: parent.width
        icon: "folder.fill"
        title: "Soundpacks Directory"

        Item {
            width: parent.width
            height: open.height

            CopyableText {
                objectName: "packsPath"
                anchors.left: parent.left
                anchors.right: open.left
                anchors.rightMargin: 16
                anchors.verticalCenter: parent.verticalCenter
                face: root.hasDirectory ? Theme.monoFace : Theme.textFace
                title: "Soundpacks Directory"
                size: 11
                text: root.hasDirectory ? root.settings.packsDirectory : "This system names no folder for your data."
            }

            PushButton {
                objectName: "openPacks"
                id: open
                anchors.right: parent.right
                implicitHeight: 28
                enabled: root.hasDirectory
                text: "Open in Finder"
                onActivated: root.settings.openPacksDirectory()
            }
        }
    }
}

pragma Strict
import QtQuick
import Tocca.UI

/// The top of the popover: brand mark, master switch, way to the Studio window, and soundstage.
Column {
    id: root

    required property MenuBarViewModel model
    required property bool isSeen

    spacing: 12

    Item {
        width: root.width
        height: 40

        PulsingLogo {
            anchors.verticalCenter: parent.verticalCenter
            isSeen: root.isSeen
            trigger: root.model.status.keyVisualizerTrigger
        }

        Toggle {
            objectName: "isEnabled"
            anchors.right: studio.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            checked: root.model.settings.isEnabled
            hint: "All sounds of Tocca, on or off"
            title: "Tocca sounds"
            onToggled: root.model.settings.toggleEnabled()
        }

        PushButton {
            id: studio
            objectName: "openStudio"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            implicitHeight: 28
            implicitWidth: 32
            hint: "Open Tocca Studio Console"
            padding: 4
            symbol: "macwindow"
            title: hint
            onActivated: root.model.showMainWindow()
        }
    }

    SoundstageStrip {
        objectName: "soundstage"
        width: root.width
        isSeen: root.isSeen
        pan: root.model.status.lastActiveKeyPan
        trigger: root.model.status.keyVisualizerTrigger
        visible: root.model.settings.isSpatialAudioEnabled
    }
}

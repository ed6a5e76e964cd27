pragma Strict
import QtQuick
import Tocca.UI

/// The top of the popover: brand mark, way to the Studio window, master switch and soundstage.
Column {
    id: root

    required property MenuBarViewModel model

    spacing: 12

    Item {
        width: root.width
        height: 40

        PulsingLogo {
            anchors.verticalCenter: parent.verticalCenter
            trigger: root.model.status.keyVisualizerTrigger
        }

        PushButton {
            objectName: "openStudio"
            anchors.right: master.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            implicitHeight: 28
            implicitWidth: 32
            hint: "Open Tocca Studio Console"
            padding: 4
            symbol: "macwindow"
            title: hint
            onActivated: root.model.showMainWindow()
        }

        Toggle {
            id: master
            objectName: "isEnabled"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            checked: root.model.settings.isEnabled
            title: "Tocca"
            onToggled: root.model.settings.toggleEnabled()
        }
    }

    SoundstageStrip {
        objectName: "soundstage"
        width: root.width
        pan: root.model.status.lastActiveKeyPan
        trigger: root.model.status.keyVisualizerTrigger
        visible: root.model.settings.isSpatialAudioEnabled
    }
}

pragma Strict
import QtQuick
import Tocca.UI

/// The brand mark, the way to the Studio window and the master switch, over the soundstage.
Column {
    id: root

    required property MenuBarViewModel model

    spacing: 12

    Item {
        width: root.width
        height: 40

        PulsingLogo {
            anchors.verticalCenter: parent.verticalCenter
            trigger: root.model.keyVisualizerTrigger
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
            checked: root.model.isEnabled
            title: "Tocca"
            onToggled: root.model.toggleEnabled()
        }
    }

    SoundstageStrip {
        objectName: "soundstage"
        width: root.width
        pan: root.model.lastActiveKeyPan
        trigger: root.model.keyVisualizerTrigger
        visible: root.model.isSpatialAudioEnabled
    }
}

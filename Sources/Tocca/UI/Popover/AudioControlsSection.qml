pragma Strict
import QtQuick
import Tocca.UI

/// The popover's section for volume, presence contour and key release.
Column {
    id: root

    required property SettingsViewModel model

    spacing: Theme.rowGap

    Item {
        width: root.width
        height: 24

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            x: 2
            color: Theme.amberAccent
            name: "speaker.wave.2.fill"
            size: 16
        }

        Slider {
            objectName: "volume"
            anchors.left: parent.left
            anchors.leftMargin: Theme.symbolColumn + 10
            anchors.right: reading.left
            anchors.rightMargin: 8
            title: qsTr("Volume")
            level: root.model.volume
            onMoved: level => root.model.setVolume(level)
        }

        Label {
            id: reading
            objectName: "volumeReading"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 38
            color: Theme.mintStatus
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignRight
            text: root.model.volumeReading
        }
    }

    ToggleRow {
        objectName: "isPresenceEQEnabled"
        width: root.width
        checked: root.model.isPresenceEQEnabled
        indented: true
        line: "+3dB Thock/Clack"
        title: "Acoustic Presence Contour"
        onToggled: root.model.togglePresenceEQ()
    }

    ToggleRow {
        objectName: "playsUpstroke"
        width: root.width
        checked: root.model.playsUpstroke
        indented: true
        title: "Play Key Release (Upstroke Rebound)"
        onToggled: root.model.toggleUpstroke()
    }
}

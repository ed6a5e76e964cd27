pragma Strict
import QtQuick
import Tocca.UI

/// The HUD's capsule: the switch, a waveform and the typing speed, which springs open and shut.
Item {
    id: root

    required property NotchHUDViewModel model

    Accessible.role: Accessible.StaticText
    Accessible.name: root.model.switchName + ", " + root.model.speed + " words per minute"

    SpringFollow {
        id: opening

        response: root.model.response
        dampingFraction: root.model.dampingFraction
        enabled: root.model.isAnimated && !Theme.reducesMotion
        to: root.model.isExpanded ? 1 : 0
    }

    Item {
        id: capsule

        objectName: "capsule"
        anchors.fill: parent
        opacity: opening.value
        scale: 0.7 + 0.3 * opening.value
        visible: opacity > 0
        // Faded as one picture; at rest the figures stay as crisp as the screen.
        layer.enabled: opacity < 1
        layer.smooth: true

        CapsulePlate {
            anchors.fill: parent
            color: Theme.hudFill
            lineFrom: Theme.hudLine
            lineTo: Theme.hudLineEnd
            shadow: 0.6
        }

        Rectangle {
            id: badge

            anchors.left: parent.left
            anchors.leftMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            width: 26
            height: 26
            radius: 13
            color: Theme.hudBadge

            StemCross {
                anchors.centerIn: parent
                color: Theme.amberGlow
                scale: 0.95 + 0.13 * opening.value
            }
        }

        Text {
            id: name

            objectName: "name"
            anchors.left: badge.right
            anchors.leftMargin: 10
            anchors.right: pill.left
            anchors.rightMargin: 20
            y: 7
            height: 13
            color: Theme.hudText
            elide: Text.ElideRight
            font.family: Theme.textFace
            font.pixelSize: 11
            font.weight: Font.Bold
            maximumLineCount: 1
            renderType: Text.NativeRendering
            text: root.model.switchName
            textFormat: Text.PlainText
            verticalAlignment: Text.AlignVCenter
        }

        WaveformBars {
            anchors.left: name.left
            anchors.top: name.bottom
            anchors.topMargin: 2
            color: Theme.hudWaveform
            duration: Theme.stateChange
            energy: root.model.currentEnergy
            isExpanded: root.model.isExpanded
        }

        SpeedPill {
            id: pill

            objectName: "pill"
            anchors.right: parent.right
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            isFast: root.model.isFast
            speed: root.model.speed
        }
    }
}

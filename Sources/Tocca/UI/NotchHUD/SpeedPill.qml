pragma Strict
import QtQuick
import Tocca.UI

/// The typing speed, in the system orange where it is fast.
Item {
    id: root

    required property string speed
    required property bool isFast

    implicitWidth: Math.ceil(row.implicitWidth) + 2 * 8
    implicitHeight: 16 + 2 * 3.5

    CapsulePlate {
        anchors.fill: parent
        color: Theme.hudPill
        lineFrom: Theme.hudPillLine
        lineTo: Theme.hudPillLine
        lineWidth: 0.8
    }

    Row {
        id: row

        anchors.centerIn: parent
        height: 16
        spacing: 4

        Symbol {
            objectName: "speedometer"
            anchors.verticalCenter: parent.verticalCenter
            color: root.isFast ? Theme.hudWarning : Theme.hudSymbol
            name: "speedometer"
            size: 10
        }

        Text {
            objectName: "speed"
            anchors.verticalCenter: parent.verticalCenter
            color: root.isFast ? Theme.hudWarning : Theme.hudText
            font.family: Theme.monoFace
            font.pixelSize: 12
            font.weight: Font.ExtraBold
            renderType: Text.NativeRendering
            text: root.speed
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.hudLabel
            font.family: Theme.textFace
            font.pixelSize: 8
            font.weight: Font.Bold
            renderType: Text.NativeRendering
            text: "WPM"
        }
    }
}

pragma Strict
import QtQuick
import Tocca.UI

/// How a slider looks: a track filled up to a knob.
Item {
    id: root

    required property real position // 0…1
    property bool active

    readonly property int travel: width - Theme.knobSize

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: 4
        radius: 2
        color: Theme.cardBorder

        Rectangle {
            width: knob.x + knob.width / 2
            height: parent.height
            radius: 2
            color: Theme.amberAccent
        }
    }

    Rectangle {
        anchors.centerIn: knob
        anchors.verticalCenterOffset: 1
        width: Theme.knobSize + 2
        height: width
        radius: width / 2
        color: Qt.alpha("black", 0.05)
    }

    Rectangle {
        id: knob
        anchors.verticalCenter: parent.verticalCenter
        x: Math.round(root.position * root.travel)
        width: Theme.knobSize
        height: width
        radius: width / 2
        color: Theme.panelBg
        border.color: root.active ? Theme.amberAccent : Qt.tint(Theme.cardBorder, Qt.alpha(Theme.textMuted, 0.3))
    }
}

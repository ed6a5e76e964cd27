pragma Strict
import QtQuick
import Tocca.UI

/// The track of a slider, filled up to its knob, and what the pointer does on it.
MouseArea {
    id: root

    required property real filled // 0…1
    readonly property int travel: width - Theme.knobSize

    signal pointed(real share) // beyond 0…1 outside the track
    signal stepped(real steps)

    hoverEnabled: true
    preventStealing: true
    onPressed: mouse => root.pointed((mouse.x - Theme.knobSize / 2) / root.travel)
    onPositionChanged: mouse => { if (pressed) root.pointed((mouse.x - Theme.knobSize / 2) / root.travel); }

    // Fingers that scroll the page over it do not turn it.
    WheelHandler {
        id: notches

        property real turned // of a notch, in eighths of a degree

        acceptedDevices: PointerDevice.Mouse
        onWheel: event => {
            const whole = Math.trunc((notches.turned + event.angleDelta.y) / 120);
            notches.turned += event.angleDelta.y - 120 * whole;
            if (whole !== 0)
                root.stepped(whole);
        }
    }

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: 4
        radius: 2
        color: Theme.controlBorder

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
        color: Blend.alpha("black", 0.05)
    }

    Rectangle {
        id: knob
        anchors.verticalCenter: parent.verticalCenter
        x: Math.round(root.filled * root.travel)
        width: Theme.knobSize
        height: width
        radius: width / 2
        color: Theme.panelBg
        border.color: root.containsMouse || root.pressed ? Theme.amberAccent : Theme.controlBorder
    }
}
